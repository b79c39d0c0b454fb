#pragma once

#include "files/binary_file.h"

namespace files {

// Creates an empty file that vanishes with the process. Sets `path` to a path that opens it
// meanwhile. Returns -errno on failure.
int open_scratch(std::filesystem::path& path);

// A temporary file. It stays until the process ends, as its path is passed on.
class scratch_file {
 public:
  // `path()` shows `shown`. Throws file_error.
  explicit scratch_file(const std::u8string& shown);

  // Writes from the first byte again. The file keeps its size: some file systems write to the disk
  // after each truncation. Throws file_error.
  void rewind();
  // The bytes are in the file at once. Throws file_error.
  void write(std::span<const std::byte> bytes);
  const file_path& path() const { return path_; }

 private:
  file_path path_;
  int file_;
};

}  // namespace files
