#include "lists/icon_names.h"

#include <string>
#include <vector>

#include "lists/compare_key.h"
#include "platform/file_error.h"
#include "platform/file_system.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "platform/text_file.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

icon_name_pair pair_of(std::string_view line) {
  const std::size_t separator = line.find(';');
  if (separator == std::string_view::npos) return {};
  return {.name = std::string(platform::trimmed(line.substr(0, separator))),
          .description = std::string(platform::trimmed(line.substr(separator + 1)))};
}

void read_rows(const std::string& path) {
  platform::text_reader reader(path);
  std::vector<icon_name_pair>& rows = tool_state.icon_names;
  while (!reader.at_end() && rows.size() <= most_icon_names) {
    rows.push_back(pair_of(reader.read_line()));
  }
}

}  // namespace

void read_iconlist() {
  tool_state.icon_names.assign(1, {});
  const std::string path = platform::with_separator(tool_state.app_path) + "iconlist.csv";
  if (platform::file_exists(path)) {
    try {
      read_rows(path);
    } catch (const platform::file_error&) {
      // The descriptions are an extra: what could be read of them serves.
    }
  }
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
