#pragma once

#include <filesystem>
#include <string>

#include "platform/binary_file.h"

namespace platform {

// A file that is written anew beside an old one, under a hidden name, and takes its place in one
// step when it is whole. Until then, and after any failure, the old file is as it was; a new file
// that is not put in place is taken away. What a sudden death left behind goes at the next time.
class replaced_file {
 public:
  // `path` is the file to be replaced or made; its last name is the one that the new file will
  // bear, whatever the case of the old one's. Throws file_error.
  explicit replaced_file(const std::string& path);
  replaced_file(const replaced_file&) = delete;
  replaced_file& operator=(const replaced_file&) = delete;
  ~replaced_file();

  binary_file& file() { return file_; }

  // Flushes the new file to the disk and puts it in place; no file of the same name in another case
  // is left beside it. Throws file_error.
  void put_in_place();

 private:
  std::string path_;
  std::filesystem::path old_place_;  // where the old file lies, or where one would
  std::filesystem::path new_place_;  // the name as given
  std::filesystem::path written_;    // the hidden name
  binary_file file_;
  bool in_place_ = false;
};

}  // namespace platform
