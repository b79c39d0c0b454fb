#pragma once

#include <filesystem>
#include <string>

namespace files {

// Keeps other copies of the tool from writing the same file. It locks a hidden file beside it,
// which the system unlocks after a crash. On file systems without locks it has no effect.
class writing_lock {
 public:
  // Waits up to half a second for another copy. Throws file_error if it cannot get the lock.
  // `shown_path` is the path of `target` for messages.
  writing_lock(const std::filesystem::path& target, const std::u8string& shown_path);
  writing_lock(const writing_lock&) = delete;
  writing_lock& operator=(const writing_lock&) = delete;
  // Removes the lock file.
  ~writing_lock();

 private:
  bool try_lock(const std::u8string& shown_path);

  std::filesystem::path path_;
  int file_ = -1;
};

}  // namespace files
