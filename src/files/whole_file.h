#pragma once

#include <string>
#include <string_view>

#include "files/binary_file.h"

namespace files {

// A file that is written completely or not at all, for jobs that write many files. A new file is
// created under its own name and removed unless keep() is called. An old file or link is replaced
// atomically by the complete new file. Unlike replaced_file it takes no lock and does not flush to
// the disk.
class whole_file {
 public:
  // Opens `file` to write `target`. Throws file_error, as require_replaceable does too.
  whole_file(binary_file& file, file_path target, const file_identity& source = {});
  whole_file(const whole_file&) = delete;
  whole_file& operator=(const whole_file&) = delete;
  ~whole_file();

  // Closes the file and gives it the name of the target. Throws file_error.
  void keep();

 private:
  binary_file& file_;
  file_path target_;
  std::filesystem::path written_;  // the target, or a hidden file beside it
  file_identity identity_;         // of that file
  bool is_kept_ = false;
};

// Throws file_error if `target` exists and must not be replaced: if it is neither a regular file
// nor a link, if it is read-only, or if it is `source`, the file that is read.
void require_replaceable(const file_path& target, const file_identity& source = {});

// Throws file_error; the old file is unchanged then.
void write_whole_file(binary_file& file, const file_path& target, std::string_view bytes,
                      const file_identity& source = {});

// All bytes of a file. Throws file_error.
std::string read_whole_file(binary_file& file, const file_path& path);

}  // namespace files
