#include "failing_calls.h"

#include <csignal>
#include <set>

#include "tool_fixture.h"

// The tool's calls to the system stand here under another name, behind those of this file, which
// the linker takes in their place.
#define file_calls system_calls
#include "platform/file_calls_posix.cpp"  // NOLINT(bugprone-suspicious-include)
#undef file_calls

namespace ostrane {
namespace {

failing_calls* present = nullptr;
std::set<int> written;  // files that are open for writing

// The call as it is, or the error with which it fails. `done_all_the_same`: not before its work.
template <typename Call, typename... Arguments>
auto made(const char* name, bool done_all_the_same, const Call& call, const Arguments&... with) {
  using outcome = decltype(call(with...));
  if (present == nullptr) return call(with...);
  const int number = static_cast<int>(present->made.size());
  present->made.emplace_back(name);
  if (number < present->at || (number > present->at && !present->lasting)) return call(with...);
  if (done_all_the_same) call(with...);
  if (present->reason == 0) std::raise(SIGKILL);
  return static_cast<outcome>(-present->reason);
}

int to_write(int file) {
  if (file >= 0) written.insert(file);
  return file;
}

}  // namespace

failing_calls::failing_calls(int failing, int with, bool all_behind_it)
    : at(failing), reason(with), lasting(all_behind_it) {
  present = this;
}
failing_calls::~failing_calls() { present = nullptr; }

}  // namespace ostrane

namespace platform::file_calls {

namespace fs = std::filesystem;
namespace real = platform::system_calls;
using ostrane::made;
using ostrane::to_write;

int open_to_read(const fs::path& at) { return made("open_to_read", false, real::open_to_read, at); }
int open_to_write(const fs::path& at) {
  return to_write(made("open_to_write", false, real::open_to_write, at));
}
int open_new(const fs::path& at) { return to_write(made("open_new", false, real::open_new, at)); }
std::int64_t read_some(int file, std::byte* to, std::size_t count) {
  return made("read_some", false, real::read_some, file, to, count);
}
// The system may write less than it was given.
std::int64_t write_some(int file, const std::byte* from, std::size_t count) {
  const std::size_t part = ostrane::present == nullptr ? count : (count + 1) / 2;
  return made("write_some", true, real::write_some, file, from, part);
}
std::int64_t seek_to(int file, std::int64_t offset) {
  return made("seek_to", false, real::seek_to, file, offset);
}
std::int64_t size_of(int file) { return made("size_of", false, real::size_of, file); }
int flush_to_disk(int file) { return made("flush_to_disk", false, real::flush_to_disk, file); }
// A file is closed also if that fails, and a full disk too gives up its files.
int close_file(int file) {
  const bool was_written = ostrane::written.erase(file) > 0;
  return made(was_written ? "close_written" : "close_read", true, real::close_file, file);
}
int remove_file(const fs::path& at) { return made("remove_file", true, real::remove_file, at); }
int replace(const fs::path& file, const fs::path& target) {
  return made("replace", false, real::replace, file, target);
}
int flush_folder(const fs::path& at) { return made("flush_folder", false, real::flush_folder, at); }
int list(const fs::path& at, std::vector<platform::listed_entry>& found) {
  return real::list(at, found);
}
int errno_number(const std::error_code& reason) { return real::errno_number(reason); }

}  // namespace platform::file_calls
