#include "lists/icon_names.h"

#include <string>
#include <vector>

#include "files/case_insensitive_lookup.h"
#include "files/failure.h"
#include "files/text.h"
#include "files/text_file.h"
#include "lists/compare_key.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

icon_name_pair pair_of(std::string_view line) {
  const std::size_t separator = line.find(';');
  if (separator == std::string_view::npos) return {};
  return {.name = std::string(files::trimmed(line.substr(0, separator))),
          .description = std::string(files::trimmed(line.substr(separator + 1)))};
}

void read_rows() {
  files::text_reader reader(
      {files::case_insensitive_lookup().find(tool_state.app_path, "iconlist.csv"), "iconlist.csv"});
  std::vector<icon_name_pair>& rows = tool_state.icon_names;
  while (!reader.at_end() && rows.size() <= max_icon_names) {
    rows.push_back(pair_of(reader.read_line()));
  }
}

}  // namespace

void read_iconlist() {
  tool_state.icon_names.assign(1, {});
  // The descriptions are an extra: without a file, or with a part of it, the tool works too.
  files::failure_of(read_rows);
  if (tool_state.icon_names.size() < 2) tool_state.icon_names.resize(2);
  tool_state.icon_name_count = static_cast<std::int16_t>(tool_state.icon_names.size() - 1);
}

std::size_t find_icon_name(std::string_view entry_name) {
  const std::size_t dot = entry_name.find('.');
  const std::string wanted =
      dot == std::string_view::npos ? "" : compare_key(entry_name.substr(0, dot));
  for (std::size_t i = 1; i < tool_state.icon_names.size(); ++i) {
    if (compare_key(tool_state.icon_names[i].name) == wanted) return i;
  }
  return 0;
}

}  // namespace ostrane
