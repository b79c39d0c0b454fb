#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "data/archive_check.h"
#include "files/code_page.h"
#include "files/text.h"

namespace ostrane::command {

namespace {

// Returns true if the archive has no fault.
bool check_one(const std::string& archive) {
  bool is_valid = true;
  const std::u8string subject = files::as_utf8(archive);
  check_archive(
      named_input(archive),
      [&](const std::string& entry, const std::string& fault) {
        is_valid = false;
        const std::u8string where =
            entry.empty() ? subject : subject + u8": " + files::to_utf8(entry);
        print_line(files::printable(where + u8": " + files::to_utf8(fault)));
      },
      show_progress);
  return is_valid;
}

}  // namespace

int check(const check_options& options) {
  bool all_valid = true;
  std::size_t unreadable = 0;
  for (const std::string& archive : options.archives) {
    const files::failure failed =
        files::failure_in([&] { all_valid = check_one(archive) && all_valid; });
    if (!failed) continue;
    print_error(failed);
    ++unreadable;
  }
  if (unreadable == options.archives.size()) return status_failed;
  return all_valid && unreadable == 0 ? status_done : status_differs;
}

}  // namespace ostrane::command
