#include "files/writing_lock.h"

#include <cerrno>
#include <chrono>
#include <thread>

#include "files/file_calls.h"
#include "files/hidden_name.h"
#include "files/system_name.h"

namespace files {

namespace {

constexpr auto longest_wait = std::chrono::milliseconds(500);
constexpr auto pause = std::chrono::milliseconds(5);

// If a file or folder of the lock's name is in the way, the message names that.
[[noreturn]] void fail_to_open(const std::filesystem::path& lock, const std::string& shown_path,
                               int outcome) {
  file_facts found;
  std::string shown = shown_path;
  if (file_calls::facts_at(lock, found) >= 0) {
    shown.erase(shown.find_last_of("\\/") + 1);
    shown += name_as_text_lossy(lock.filename().native());
  }
  file_calls::fail(shown, " cannot be opened: ", outcome);
}

}  // namespace

writing_lock::writing_lock(const std::filesystem::path& target, const std::string& shown_path)
    : path_(hidden_beside(target, ".lock")) {
  const auto give_up_at = std::chrono::steady_clock::now() + longest_wait;
  while (!take(shown_path)) {
    if (std::chrono::steady_clock::now() >= give_up_at) {
      throw file_error{file_error_number::device_unavailable,
                       shown_path + " cannot be written: another copy of the tool is writing it."};
    }
    std::this_thread::sleep_for(pause);
  }
}

writing_lock::~writing_lock() {
  if (file_calls::is_at(file_, path_) == 1) file_calls::remove_file(path_);
  file_calls::close_file(file_);
}

bool writing_lock::take(const std::string& shown_path) {
  int file = file_calls::open_to_write(path_);
  const int as_is = file == -EACCES ? file_calls::open_to_read(path_) : file;  // another user's
  if (as_is >= 0) file = as_is;
  if (file < 0) fail_to_open(path_, shown_path, file);
  const bool is_locked = file_calls::lock(file) == -EWOULDBLOCK;
  // The copy that had the lock before may have removed its file meanwhile.
  if (is_locked || file_calls::is_at(file, path_) == 0) {
    file_calls::close_file(file);
    return false;
  }
  file_ = file;
  return true;
}

}  // namespace files
