#include "data/name_list.h"

#include "files/text_file.h"

namespace ostrane {

void write_name_list(const files::file_path& path, const name_list& archive) {
  std::string lines;
  for (std::int32_t row = 0; row < archive.count; ++row) lines.append(archive.name(row) + "\r\n");
  files::write_text(path, lines, archive.archive);
}

}  // namespace ostrane
