#include "command/commands.h"
#include "command/console.h"
#include "command/json_rows.h"
#include "command/named_files.h"
#include "data/archive_diff.h"
#include "data/number_text.h"
#include "files/code_page.h"
#include "files/text.h"
#include "pictures/json_text.h"

namespace ostrane::command {

namespace {

std::string text_of(const std::vector<std::size_t>& numbers) {
  std::string text;
  for (const std::size_t number : numbers) {
    text += (text.empty() ? "" : ", ") + std::to_string(number);
  }
  return text;
}

void print_text(const diff_options& options, const entry_difference& one) {
  if (!one.old_size || !one.new_size) {
    const std::string& archive = one.old_size ? options.old_archive : options.new_archive;
    print_line(files::printable(
        u8"Only in " + files::as_utf8(archive) + u8": " + one.name + u8", " +
        files::as_utf8(counted(one.old_size ? *one.old_size : *one.new_size, "byte"))));
    return;
  }
  std::string text =
      " differs: " + counted(*one.old_size, "byte") + ", " + counted(*one.new_size, "byte");
  if (one.icons) text += one.icons->empty() ? "; no icon" : "; icons " + text_of(*one.icons);
  print_line(files::printable(one.name + files::as_utf8(text)));
}

std::string json_of(const entry_difference& one) {
  const auto number = [](const auto& size) { return size ? std::to_string(*size) : "null"; };
  return json_object({{"name", json_string(one.name)},
                      {"old_size", number(one.old_size)},
                      {"new_size", number(one.new_size)},
                      {"icons", one.icons ? "[" + text_of(*one.icons) + "]" : "null"}});
}

}  // namespace

int diff(const diff_options& options) {
  const std::vector<entry_difference> found =
      diff_archives(named_input(options.old_archive), named_input(options.new_archive),
                    [](std::size_t done, std::size_t count) { show_progress(done, count, ""); });
  json_rows rows;
  for (const entry_difference& one : found) {
    if (options.is_json) {
      rows.add(json_of(one));
    } else {
      print_text(options, one);
    }
  }
  if (options.is_json) rows.end();
  return found.empty() ? status_done : status_differs;
}

}  // namespace ostrane::command
