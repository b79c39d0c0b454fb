#pragma once

#include <filesystem>
#include <string>

namespace files {

// Keeps other copies of the tool from writing the same file. The lock is a hidden file beside it,
// which a crash leaves unlocked. Where the system cannot lock files it keeps nobody away.
class writing_lock {
 public:
  // Waits up to half a second for another copy to end. Throws file_error, which names the file to
  // be written by `shown_path`.
  writing_lock(const std::filesystem::path& target, const std::string& shown_path);
  writing_lock(const writing_lock&) = delete;
  writing_lock& operator=(const writing_lock&) = delete;
  // Removes the lock file.
  ~writing_lock();

 private:
  bool take(const std::string& shown_path);

  std::filesystem::path path_;
  int file_ = -1;
};

}  // namespace files
