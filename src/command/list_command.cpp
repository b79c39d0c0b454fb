#include <algorithm>

#include "command/commands.h"
#include "command/console.h"
#include "command/entry_row.h"
#include "command/json_rows.h"
#include "command/named_files.h"
#include "files/code_page.h"
#include "files/text.h"
#include "pictures/json_text.h"

namespace ostrane::command {

namespace {

struct listing {
  const list_options& options;
  descriptions known = {};
  json_rows json = {};

  bool shows_all() const { return options.is_long || options.is_json; }
  // With several archives each row names its own.
  bool names_archives() const { return options.archives.size() > 1; }
};

std::string right_aligned(const std::string& text, std::size_t width) {
  return std::string(text.size() < width ? width - text.size() : 0, ' ') + text;
}

// The name comes after the columns without blanks, as it may contain some.
std::u8string long_line(const entry_row& entry) {
  std::string columns = right_aligned(std::to_string(entry.size), 10) + " " +
                        right_aligned(std::to_string(entry.offset), 10) + "  ";
  const std::string kind = text_of(entry.kind);
  columns += kind + std::string(8 - kind.size(), ' ') +
             right_aligned(entry.icons ? std::to_string(*entry.icons) : "-", 5) + "  ";
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

std::string json_of(const listing& job, const std::string& archive, const entry_row& entry) {
  std::string json = json_object({{"name", json_string(entry.name)},
                                  {"size", std::to_string(entry.size)},
                                  {"offset", std::to_string(entry.offset)},
                                  {"kind", json_string(text_of(entry.kind))},
                                  {"icons", entry.icons ? std::to_string(*entry.icons) : "null"},
                                  {"description", json_string(entry.description)}});
  if (job.names_archives()) {
    json.insert(1, "\"archive\":" + json_string(files::as_utf8(archive)) + ",");
  }
  return json;
}

void print_entries(listing& job, const std::string& argument) {
  const files::file_path archive = named_input(argument);
  const archive_index index = read_archive_index(archive);
  files::binary_file file;
  open_unchanged(file, archive, index.stamp);
  const std::u8string prefix = job.names_archives() ? files::as_utf8(argument) + u8": " : u8"";
  for (const std::size_t i : ordered_entries(index, job.options.order)) {
    if (!job.shows_all()) {
      print_line(prefix + files::printable(shown_name(index, i)));
    } else if (job.options.is_json) {
      job.json.add(json_of(job, argument, row_of_entry(index, i, file, job.known)));
    } else {
      print_line(prefix + long_line(row_of_entry(index, i, file, job.known)));
    }
  }
}

}  // namespace

int list(const list_options& options) {
  listing job = {.options = options};
  if (job.shows_all()) job.known = read_descriptions(require_icon_names_file(options.icon_names));
  std::size_t unread = 0;
  for (const std::string& archive : options.archives) {
    const files::failure failed = files::failure_in([&] { print_entries(job, archive); });
    if (!failed) continue;
    print_error(failed);
    ++unread;
  }
  const bool is_failed = unread == options.archives.size();
  if (options.is_json && (!is_failed || !job.json.is_empty())) job.json.end();
  if (is_failed) return status_failed;
  return unread == 0 ? status_done : status_differs;
}

}  // namespace ostrane::command
