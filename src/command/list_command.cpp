#include <algorithm>
#include <optional>
#include <unordered_map>

#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "command/program.h"
#include "data/entry_kind.h"
#include "data/icon_names.h"
#include "data/shp_reader.h"
#include "files/code_page.h"
#include "files/program_folder.h"
#include "files/text.h"
#include "pictures/json_text.h"

namespace ostrane::command {

namespace {

struct entry_row {
  std::u8string name;
  std::int64_t size = 0;
  std::int32_t offset = 0;
  entry_kind kind = entry_kind::other;
  std::optional<std::int32_t> icons;  // of an icon file that has a head
  std::u8string description;
};

using descriptions = std::unordered_map<std::string, std::u8string>;

// The first row of a name wins.
descriptions read_descriptions(const list_options& options) {
  descriptions found;
  const files::file_path installed = {files::program_folder() / "iconlist.csv", u8"iconlist.csv"};
  const files::file_path chosen = named_file(options.icon_names);
  if (!options.icon_names.empty()) files::binary_file().open_to_read(chosen);
  const auto rows = read_icon_names(options.icon_names.empty() ? installed : chosen);
  for (const icon_name_pair& row : rows) {
    if (&row == rows.data()) continue;  // row 0 is unused
    found.emplace(files::compare_key(row.name), files::to_utf8(row.description));
  }
  return found;
}

std::optional<std::int32_t> icons_of(files::binary_file& file, const entry_row& entry) {
  shp_head head;
  if (entry.kind != entry_kind::icons || entry.size < std::int64_t{shp_head_size}) return {};
  if (!read_shp_head(file, entry.offset, head)) return {};
  return head.icon_count;
}

entry_row row_at(files::binary_file& file, const archive_index& index, std::size_t i,
                 const descriptions& known) {
  const dat_record& record = index.records[i];
  const std::string listed = name_without_nuls(record.name);
  entry_row entry = {.name = files::to_utf8(name_with_blanks(record.name)),
                     .size = std::int64_t{index.records[i + 1].offset} - record.offset,
                     .offset = record.offset,
                     .kind = kind_of_entry(listed),
                     .icons = {},
                     .description = {}};
  entry.icons = icons_of(file, entry);
  const auto row = known.find(icon_name_key(listed));
  if (row != known.end()) entry.description = row->second;
  return entry;
}

std::string padded(const std::string& text, std::size_t width) {
  return std::string(text.size() < width ? width - text.size() : 0, ' ') + text;
}

// The name comes after the columns without blanks, as it may contain some.
std::u8string long_line(const entry_row& entry) {
  std::string columns = padded(std::to_string(entry.size), 10) + " " +
                        padded(std::to_string(entry.offset), 10) + "  ";
  const std::string kind = text_of(entry.kind);
  columns += kind + std::string(8 - kind.size(), ' ') +
             padded(entry.icons ? std::to_string(*entry.icons) : "-", 5) + "  ";
  std::u8string line = files::as_utf8(columns) + files::printable(entry.name);
  if (!entry.description.empty()) {
    const auto starts_character = [](char8_t c) { return (c & 0xC0U) != 0x80; };
    const auto width = static_cast<std::size_t>(
        std::count_if(entry.name.begin(), entry.name.end(), starts_character));
    line += std::u8string(width < name_size ? name_size - width : 0, u8' ') + u8"  " +
            files::printable(entry.description);
  }
  return line;
}

std::string json_of(const entry_row& entry) {
  return json_object({{"name", json_string(entry.name)},
                      {"size", std::to_string(entry.size)},
                      {"offset", std::to_string(entry.offset)},
                      {"kind", json_string(text_of(entry.kind))},
                      {"icons", entry.icons ? std::to_string(*entry.icons) : "null"},
                      {"description", json_string(entry.description)}});
}

void print_names(const archive_index& index) {
  for (std::size_t i = 0; i + 1 < index.records.size(); ++i) {
    print_line(files::printable(files::to_utf8(name_with_blanks(index.records[i].name))));
  }
}

}  // namespace

int list(const list_options& options) {
  const files::file_path archive = named_file(options.archive);
  const archive_index index = read_archive_index(archive);
  if (!options.is_long && !options.is_json) {
    print_names(index);
    return status_done;
  }
  const descriptions known = read_descriptions(options);
  files::binary_file file;
  open_unchanged(file, archive, index.stamp);
  if (options.is_json) print("[");
  for (std::size_t i = 0; i + 1 < index.records.size(); ++i) {
    const entry_row entry = row_at(file, index, i, known);
    if (!options.is_json) {
      print_line(long_line(entry));
      continue;
    }
    print(i == 0 ? "\n  " : ",\n  ");
    print(json_of(entry));
  }
  if (options.is_json) print("\n]\n");
  return status_done;
}

}  // namespace ostrane::command
