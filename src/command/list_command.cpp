#include <algorithm>
#include <optional>
#include <unordered_map>

#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
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
  std::string key;                    // for the order of names
  std::optional<std::int32_t> icons;  // of an icon file that has a head
  std::u8string description;
};

using descriptions = std::unordered_map<std::string, std::u8string>;

// The first row of a name wins.
descriptions read_descriptions(const list_options& options) {
  descriptions found;
  const files::file_path installed = {files::program_folder() / "iconlist.csv", u8"iconlist.csv"};
  const files::file_path chosen =
      options.icon_names.empty() ? installed : named_input(options.icon_names);
  if (!options.icon_names.empty()) files::binary_file().open_to_read(chosen);
  const auto rows = read_icon_names(chosen);
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

bool shows_all(const list_options& options) { return options.is_long || options.is_json; }

entry_row row_at(const archive_index& index, std::size_t i) {
  const dat_record& record = index.records[i];
  return {.name = files::to_utf8(name_with_blanks(record.name)),
          .size = std::int64_t{index.records[i + 1].offset} - record.offset,
          .offset = record.offset,
          .kind = kind_of_entry(name_without_nuls(record.name)),
          .key = files::compare_key(name_with_blanks(record.name)),
          .icons = {},
          .description = {}};
}

void add_details(entry_row& entry, const dat_record& record, files::binary_file& file,
                 const descriptions& known) {
  entry.icons = icons_of(file, entry);
  const auto row = known.find(icon_name_key(name_without_nuls(record.name)));
  if (row != known.end()) entry.description = row->second;
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

std::vector<entry_row> rows_of(const list_options& options, const files::file_path& archive,
                               const descriptions& known) {
  const archive_index index = read_archive_index(archive);
  files::binary_file file;
  open_unchanged(file, archive, index.stamp);
  std::vector<entry_row> rows;
  for (std::size_t i = 0; i + 1 < index.records.size(); ++i) {
    rows.push_back(row_at(index, i));
    if (shows_all(options)) add_details(rows.back(), index.records[i], file, known);
  }
  const std::string& order = options.order;
  if (order.empty()) return rows;
  std::stable_sort(rows.begin(), rows.end(), [&order](const entry_row& a, const entry_row& b) {
    if (order == "name") return a.key < b.key;
    if (order == "size") return a.size < b.size;
    if (order == "offset") return a.offset < b.offset;
    return order == "kind" && a.kind < b.kind;
  });
  return rows;
}

// With several archives each row names its own.
void print_rows(const list_options& options, const std::string& archive,
                const std::vector<entry_row>& rows, bool& is_first) {
  const bool is_one = options.archives.size() == 1;
  const std::u8string prefix = is_one ? u8"" : files::as_utf8(archive) + u8": ";
  for (const entry_row& row : rows) {
    if (!options.is_json) {
      print_line(prefix + (options.is_long ? long_line(row) : files::printable(row.name)));
      continue;
    }
    print(std::exchange(is_first, false) ? "[\n  " : ",\n  ");
    std::string json = json_of(row);
    if (!is_one) {
      json.insert(1, "\"archive\":" + json_string(files::as_utf8(archive)) + ",");
    }
    print(json);
  }
}

}  // namespace

int list(const list_options& options) {
  const descriptions known = shows_all(options) ? read_descriptions(options) : descriptions();
  std::size_t unread = 0;
  bool is_first = true;
  for (const std::string& archive : options.archives) {
    const files::failure failed = files::failure_in([&] {
      print_rows(options, archive, rows_of(options, named_input(archive), known), is_first);
    });
    if (!failed) continue;
    print_error(failed);
    ++unread;
  }
  if (unread == options.archives.size()) return status_failed;
  if (options.is_json) print(is_first ? "[\n]\n" : "\n]\n");
  return unread == 0 ? status_done : status_differs;
}

}  // namespace ostrane::command
