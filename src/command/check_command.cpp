#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "data/archive_check.h"
#include "files/code_page.h"
#include "files/file_error.h"
#include "files/text.h"

namespace ostrane::command {

namespace {

// Returns true if the archive has no fault.
bool check_one(const std::string& archive) {
  bool is_valid = true;
  check_archive(
      named_file(archive),
      [&](const std::string& entry, const std::string& fault) {
        is_valid = false;
        const std::string where = entry.empty() ? archive : archive + ": " + files::to_utf8(entry);
        print_line(files::printable(fault.starts_with(where) ? fault : where + ": " + fault));
      },
      [](std::size_t number, std::size_t count, const std::string& name) {
        show_progress(number, count, files::to_utf8(name));
      });
  return is_valid;
}

}  // namespace

int check(const check_options& options) {
  bool all_valid = true;
  std::size_t unreadable = 0;
  for (const std::string& archive : options.archives) {
    try {
      all_valid = check_one(archive) && all_valid;
    } catch (const files::file_error& error) {
      print_error(archive, error.text);
      ++unreadable;
    }
  }
  if (unreadable == options.archives.size()) return status_failed;
  return all_valid && unreadable == 0 ? status_done : status_differs;
}

}  // namespace ostrane::command
