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

int opened_to_write(int file) {
  if (file >= 0) written.insert(file);
  return file;
}

// The call as it is, or the error with which it fails behind a part of its work.
template <typename Call, typename Part>
auto made(const char* name, const Call& call, const Part& part) -> decltype(call()) {
  if (present == nullptr) return call();
  const int number = static_cast<int>(present->made.size());
  present->made.emplace_back(name);
  if (number < present->at || (number > present->at && !present->lasting)) return call();
  part();
  if (present->reason == 0) std::raise(SIGKILL);
  return -present->reason;
}

template <typename Call>
auto made(const char* name, const Call& call) -> decltype(call()) {
  return made(name, call, [] {});
}

}  // namespace

failing_calls::failing_calls(int failing, int with, bool all_behind_it)
    : at(failing), reason(with), lasting(all_behind_it) {
  present = this;
}
failing_calls::~failing_calls() { present = nullptr; }

}  // namespace ostrane

namespace platform::file_calls {

using ostrane::made;
using ostrane::opened_to_write;
using place_on_disk = std::filesystem::path;

int open_to_read(const place_on_disk& place) {
  return made("open_to_read", [&] { return system_calls::open_to_read(place); });
}
int open_to_write(const place_on_disk& place) {
  return opened_to_write(made("open_to_write", [&] { return system_calls::open_to_write(place); }));
}
int open_new(const place_on_disk& place) {
  return opened_to_write(made("open_new", [&] { return system_calls::open_new(place); }));
}
std::int64_t read_some(int file, std::byte* to, std::size_t count) {
  return made("read_some", [&] { return system_calls::read_some(file, to, count); });
}
std::int64_t write_some(int file, const std::byte* from, std::size_t count) {
  // The system may write less than it was given.
  const std::size_t part = ostrane::present == nullptr ? count : (count + 1) / 2;
  const auto write = [&] { return system_calls::write_some(file, from, part); };
  return made("write_some", write, write);
}
std::int64_t seek_to(int file, std::int64_t offset) {
  return made("seek_to", [&] { return system_calls::seek_to(file, offset); });
}
std::int64_t size_of(int file) {
  return made("size_of", [&] { return system_calls::size_of(file); });
}
int flush_to_disk(int file) {
  return made("flush_to_disk", [&] { return system_calls::flush_to_disk(file); });
}
int close_file(int file) {
  const auto close = [&] { return system_calls::close_file(file); };
  const bool was_written = ostrane::written.erase(file) > 0;
  return made(was_written ? "close_written" : "close_read", close,
              close);  // the file is closed also if that fails
}
int replace(const place_on_disk& file, const place_on_disk& target) {
  return made("replace", [&] { return system_calls::replace(file, target); });
}
int flush_folder(const place_on_disk& folder) {
  return made("flush_folder", [&] { return system_calls::flush_folder(folder); });
}
int remove_file(const place_on_disk& place) {
  const auto remove = [&] { return system_calls::remove_file(place); };
  return made("remove_file", remove, remove);  // a full disk too gives up its files
}
bool is_hidden(const place_on_disk& place) { return system_calls::is_hidden(place); }
int errno_number(const std::error_code& reason) { return system_calls::errno_number(reason); }

}  // namespace platform::file_calls
