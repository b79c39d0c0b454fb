#include "handlers/entry_details.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

#include "data/archive_index.h"
#include "data/entry_kind.h"
#include "data/entry_range.h"
#include "data/number_text.h"
#include "data/shp_reader.h"
#include "files/code_page.h"
#include "files/failure.h"
#include "files/paths.h"
#include "files/text.h"
#include "forms/form1.h"
#include "state/open_archive.h"

namespace ostrane {

namespace {

// Rows by the key of an entry's name.
std::unordered_map<std::string, std::size_t> description_rows() {
  std::unordered_map<std::string, std::size_t> rows;
  for (std::size_t i = 1; i < tool_state.icon_names.size(); ++i) {
    rows.emplace(files::compare_key(tool_state.icon_names[i].name), i);
  }
  return rows;
}

// Nothing if the head of the icon file cannot be read.
std::optional<std::int32_t> icon_count(const entry_range& range) {
  std::optional<std::int32_t> count;
  if (range.size() < std::int64_t{shp_head_size}) return count;
  files::ignore_failure([&] {
    files::binary_file archive;
    shp_head head = {};
    open_unchanged(archive, files::to_file_path(tool_state.archive_path_copy),
                   tool_state.archive_stamp);
    if (read_shp_head(archive, range.start, head)) count = std::max(head.icon_count, 0);
  });
  return count;
}

}  // namespace

std::vector<std::int32_t> rows_with(const std::string& text) {
  std::vector<std::int32_t> found;
  const std::string wanted = files::upper_case(text);
  if (wanted.empty()) return found;
  const auto known = description_rows();
  for (std::int32_t row = 0; row < Form1.List1.ListCount(); ++row) {
    const std::string& name = Form1.List1.List(row);
    std::string searched = name;
    const auto described = known.find(icon_name_key(name));
    if (described != known.end()) {
      searched += '\n' + tool_state.icon_names[described->second].description;
    }
    if (files::upper_case(searched).find(wanted) != std::string::npos) found.push_back(row);
  }
  return found;
}

std::string entry_tool_tip(std::int32_t row) {
  const bool is_entry = row >= 0 && row < tool_state.record_count - 1;
  if (tool_state.archive_is_open == flag_false || !is_entry) return "";
  const entry_range range = range_of(index_records(), row);
  const entry_kind kind = kind_of_entry(Form1.List1.List(row));
  const auto icons = kind == entry_kind::icons ? icon_count(range) : std::nullopt;
  return entry_name(row) + ": " + counted(size_of(range), "byte") + " at " +
         std::to_string(range.start) + ", " + text_of(kind) +
         (icons ? ", " + counted(*icons, "icon") : "");
}

}  // namespace ostrane
