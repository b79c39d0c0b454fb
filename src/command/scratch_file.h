#pragma once

#include "files/binary_file.h"

namespace ostrane::command {

// A temporary file. It stays until the process ends, as its path is passed on.
class scratch_file {
 public:
  // Messages show `shown`. Throws file_error.
  explicit scratch_file(const std::u8string& shown);

  // Empties the file. Throws file_error.
  void clear();
  // The bytes are in the file at once. Throws file_error.
  void write(std::span<const std::byte> bytes);
  const files::file_path& path() const { return path_; }

 private:
  files::file_path path_;
  int file_;
};

}  // namespace ostrane::command
