#include "command/commands.h"
#include "command/console.h"
#include "command/named_files.h"
#include "data/archive_check.h"
#include "files/code_page.h"
#include "files/text.h"

namespace ostrane::command {

namespace {

// Returns their number.
std::size_t print_faults(const std::string& archive) {
  std::size_t count = 0;
  const std::u8string subject = files::as_utf8(archive);
  check_archive(
      named_input(archive),
      [&](const std::string& entry, const std::string& fault) {
        ++count;
        const std::u8string where =
            entry.empty() ? subject : subject + u8": " + files::to_utf8(entry);
        print_line(files::printable(where + u8": " + files::to_utf8(fault)));
      },
      show_progress);
  return count;
}

}  // namespace

int check(const check_options& options) {
  std::size_t faults = 0;
  std::size_t unreadable = 0;
  for (const std::string& archive : options.archives) {
    const files::failure failed = files::failure_in([&] { faults += print_faults(archive); });
    if (!failed) continue;
    print_error(failed);
    ++unreadable;
  }
  if (unreadable == options.archives.size()) return status_failed;
  return faults + unreadable == 0 ? status_done : status_differs;
}

}  // namespace ostrane::command
