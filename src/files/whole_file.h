#pragma once

#include <string>
#include <string_view>

#include "files/binary_file.h"

namespace files {

// A file that is written whole or not at all, for jobs that write many. A missing file is made
// under its own name and removed again if it is not kept. An old file or link stays until the new
// content is whole and takes its place in one step. Unlike replaced_file it takes no lock and does
// not flush to the disk.
class whole_file {
 public:
  // Opens `file` to write `target`. Throws file_error, also if something else than a normal file or
  // a link has the name, or the file that is read from, `source`.
  whole_file(binary_file& file, file_path target, const file_identity& source = {});
  whole_file(const whole_file&) = delete;
  whole_file& operator=(const whole_file&) = delete;
  ~whole_file();

  // Closes the file and puts it in place. Throws file_error.
  void keep();

 private:
  binary_file& file_;
  file_path target_;
  std::filesystem::path written_;  // the target, or a hidden file beside it
  file_identity identity_;         // of that file
  bool is_kept_ = false;
};

// Throws file_error if there is something at `target` that must not be replaced: what is no normal
// file and no link, a read-only file, or the file that is read from, `source`.
void require_replaceable(const file_path& target, const file_identity& source = {});

// Throws file_error; then the old file is as it was.
void write_whole_file(binary_file& file, const file_path& target, std::string_view bytes,
                      const file_identity& source = {});

// All bytes of a file. Throws file_error.
std::string read_whole_file(binary_file& file, const file_path& path);

}  // namespace files
