#include <algorithm>
#include <numeric>
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
  std::optional<std::int32_t> icons;  // of an icon file that has a head
  std::u8string description;
};

using descriptions = std::unordered_map<std::string, std::u8string>;

// The first row of a name wins.
descriptions read_descriptions(const list_options& options) {
  descriptions found;
  const files::file_path chosen = options.icon_names.empty()
                                      ? icon_names_in(files::program_folder())
                                      : named_input(options.icon_names);
  // Only the installed file may be missing.
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

std::u8string name_at(const archive_index& index, std::size_t i) {
  return files::to_utf8(name_with_blanks(index.records[i].name));
}

std::int64_t size_at(const archive_index& index, std::size_t i) {
  return std::int64_t{index.records[i + 1].offset} - index.records[i].offset;
}

entry_kind kind_at(const archive_index& index, std::size_t i) {
  return kind_of_entry(name_without_nuls(index.records[i].name));
}

entry_row row_at(const archive_index& index, std::size_t i, files::binary_file& file,
                 const descriptions& known) {
  entry_row entry = {.name = name_at(index, i),
                     .size = size_at(index, i),
                     .offset = index.records[i].offset,
                     .kind = kind_at(index, i),
                     .icons = {},
                     .description = {}};
  entry.icons = icons_of(file, entry);
  const auto row = known.find(icon_name_key(name_without_nuls(index.records[i].name)));
  if (row != known.end()) entry.description = row->second;
  return entry;
}

// The indices of the entries in the chosen order.
std::vector<std::size_t> ordered_entries(const archive_index& index, const std::string& order) {
  std::vector<std::size_t> entries(std::max<std::size_t>(index.records.size(), 1) - 1);
  std::iota(entries.begin(), entries.end(), std::size_t{0});
  const auto sort_by = [&entries](const auto& key_of) {
    std::stable_sort(entries.begin(), entries.end(),
                     [&](std::size_t a, std::size_t b) { return key_of(a) < key_of(b); });
  };
  if (order == "name") {
    std::vector<std::string> keys;
    keys.reserve(entries.size());
    for (const std::size_t i : entries) {
      keys.push_back(name_key(index.records[i].name));
    }
    sort_by([&](std::size_t i) -> const std::string& { return keys[i]; });
  } else if (order == "size") {
    sort_by([&](std::size_t i) { return size_at(index, i); });
  } else if (order == "offset") {
    sort_by([&](std::size_t i) { return index.records[i].offset; });
  } else if (order == "kind") {
    sort_by([&](std::size_t i) { return kind_at(index, i); });
  }
  return entries;
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

// With several archives each row names its own.
void print_json(const entry_row& row, const std::string* archive, bool is_first) {
  print(is_first ? "[\n  " : ",\n  ");
  std::string json = json_of(row);
  if (archive != nullptr) {
    json.insert(1, "\"archive\":" + json_string(files::as_utf8(*archive)) + ",");
  }
  print(json);
}

void print_archive(const list_options& options, const std::string& argument,
                   const descriptions& known, bool& is_first) {
  const files::file_path archive = named_input(argument);
  const archive_index index = read_archive_index(archive);
  files::binary_file file;
  open_unchanged(file, archive, index.stamp);
  const bool is_one = options.archives.size() == 1;
  const std::u8string prefix = is_one ? u8"" : files::as_utf8(argument) + u8": ";
  for (const std::size_t i : ordered_entries(index, options.order)) {
    if (!shows_all(options)) {
      print_line(prefix + files::printable(name_at(index, i)));
      continue;
    }
    const entry_row row = row_at(index, i, file, known);
    if (!options.is_json) {
      print_line(prefix + long_line(row));
      continue;
    }
    print_json(row, is_one ? nullptr : &argument, std::exchange(is_first, false));
  }
}

}  // namespace

int list(const list_options& options) {
  const descriptions known = shows_all(options) ? read_descriptions(options) : descriptions();
  std::size_t unread = 0;
  bool is_first = true;
  for (const std::string& archive : options.archives) {
    const files::failure failed =
        files::failure_in([&] { print_archive(options, archive, known, is_first); });
    if (!failed) continue;
    print_error(failed);
    ++unread;
  }
  const bool is_failed = unread == options.archives.size();
  if (options.is_json && !(is_failed && is_first)) print(is_first ? "[\n]\n" : "\n]\n");
  if (is_failed) return status_failed;
  return unread == 0 ? status_done : status_differs;
}

}  // namespace ostrane::command
