#include "command/entry_row.h"

#include <algorithm>
#include <numeric>

#include "command/named_files.h"
#include "data/entry_range.h"
#include "data/icon_names.h"
#include "data/shp_reader.h"
#include "files/code_page.h"
#include "files/program_folder.h"
#include "files/text.h"

namespace ostrane::command {

namespace {

std::optional<std::int32_t> icons_of(files::binary_file& archive, const entry_row& entry) {
  shp_head head;
  if (entry.kind != entry_kind::icons || entry.size < std::int64_t{shp_head_size}) return {};
  if (!read_shp_head(archive, entry.offset, head)) return {};
  return std::max(head.icon_count, 0);
}

std::int64_t size_of(const archive_index& index, std::size_t i) {
  return range_of(index.records, static_cast<std::int32_t>(i)).size();
}

entry_kind kind_of(const archive_index& index, std::size_t i) {
  return kind_of_entry(name_without_nuls(index.records[i].name));
}

}  // namespace

files::file_path require_icon_names_file(const std::string& argument) {
  if (argument.empty()) return icon_names_file_in(files::program_folder());
  files::file_path named = named_input(argument);
  files::binary_file().open_to_read(named);  // only the installed file may be missing
  return named;
}

descriptions read_descriptions(const files::file_path& icon_names) {
  descriptions found;
  const auto rows = read_icon_names(icon_names);
  for (const icon_name_pair& row : rows) {
    if (&row == rows.data()) continue;  // row 0 is unused
    // The first row of a name wins.
    found.emplace(files::compare_key(row.name), files::to_utf8(row.description));
  }
  return found;
}

std::u8string shown_name(const archive_index& index, std::size_t i) {
  return files::to_utf8(name_with_blanks(index.records[i].name));
}

entry_row row_of_entry(const archive_index& index, std::size_t i, files::binary_file& archive,
                       const descriptions& known) {
  entry_row entry = {.name = shown_name(index, i),
                     .size = size_of(index, i),
                     .offset = index.records[i].offset,
                     .kind = kind_of(index, i),
                     .icons = {},
                     .description = {}};
  entry.icons = icons_of(archive, entry);
  const auto row = known.find(icon_name_key(name_without_nuls(index.records[i].name)));
  if (row != known.end()) entry.description = row->second;
  return entry;
}

std::vector<std::size_t> ordered_entries(const archive_index& index, const std::string& order) {
  std::vector<std::size_t> entries(entries_of(index.records).size());
  std::iota(entries.begin(), entries.end(), std::size_t{0});
  const auto sort_by = [&entries](const auto& key_of) {
    std::stable_sort(entries.begin(), entries.end(),
                     [&](std::size_t a, std::size_t b) { return key_of(a) < key_of(b); });
  };
  if (order == "name") {
    std::vector<std::string> keys;
    keys.reserve(entries.size());
    for (const std::size_t i : entries) keys.push_back(name_key(index.records[i].name));
    sort_by([&](std::size_t i) -> const std::string& { return keys[i]; });
  } else if (order == "size") {
    sort_by([&](std::size_t i) { return size_of(index, i); });
  } else if (order == "offset") {
    sort_by([&](std::size_t i) { return index.records[i].offset; });
  } else if (order == "kind") {
    sort_by([&](std::size_t i) { return kind_of(index, i); });
  }
  return entries;
}

}  // namespace ostrane::command
