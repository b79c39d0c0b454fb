#include "files/writing_lock.h"

#include <cerrno>
#include <chrono>
#include <thread>

#include "files/file_error.h"
#include "files/path_match.h"
#include "files/work_files.h"

namespace files {

namespace {

constexpr auto max_wait = std::chrono::milliseconds(500);
constexpr auto pause = std::chrono::milliseconds(5);

// The message names what refuses: the lock file if it exists, else the folder if that is the
// reason.
[[noreturn]] void fail_to_open(const std::filesystem::path& lock, std::u8string shown, int status) {
  file_info found;
  const std::size_t folder_size = shown.find_last_of(u8"\\/") + 1;
  if (system_calls.info_at(lock, found) >= 0) {
    shown.replace(folder_size, shown.npos, lock.filename().u8string());
    fail(shown, file_action::open, status);
  }
  if (status != -EACCES && status != -EPERM) fail(shown, file_action::create, status);
  shown.erase(folder_size);
  fail(shown.empty() ? u8"." : shown, file_action::create_in, status);
}

}  // namespace

writing_lock::writing_lock(const std::filesystem::path& target, const std::u8string& shown_path)
    : path_(lock_beside(target)) {
  const auto deadline = std::chrono::steady_clock::now() + max_wait;
  while (!try_lock(shown_path)) {
    if (std::chrono::steady_clock::now() >= deadline) {
      throw file_error(file_error_number::device_unavailable, file_action::write, shown_path,
                       "another copy of the tool is writing it");
    }
    std::this_thread::sleep_for(pause);
  }
}

writing_lock::~writing_lock() {
  if (match(path_, file_).is_same) system_calls.remove_file(path_);
  system_calls.close_file(file_);
}

bool writing_lock::try_lock(const std::u8string& shown_path) {
  const int file = system_calls.open_lock(path_);
  if (file == -EWOULDBLOCK) return false;
  if (file < 0) fail_to_open(path_, shown_path, file);
  // A file system without locks gives another error. Then the copies do not wait for each other.
  const bool held_by_another = system_calls.lock(file) == -EWOULDBLOCK;
  // Another copy may remove the lock file between our open and our lock.
  if (held_by_another || match(path_, file).is_other()) {
    system_calls.close_file(file);
    return false;
  }
  file_ = file;
  return true;
}

}  // namespace files
