#include "data/export_output.h"

#include "data/archive_index.h"

namespace ostrane {

files::write_rules rules_of(const export_output& output) {
  return {.source = output.stamp.identity, .replaces = output.replaces};
}

void write_export(export_output& output, const std::u8string& name, std::string_view bytes) {
  require_unchanged(output.archive, output.stamp, "export");
  const files::file_path target = output.target(name);
  if (output.may_write && !output.may_write(target)) return;
  files::write_bytes(output.file, target, bytes, rules_of(output));
}

}  // namespace ostrane
