#pragma once

#include "files/system_calls.h"

namespace files {

// Whether a path names a certain file.
struct path_match {
  bool is_same = false;
  int error = 0;  // why it is unknown, a negative errno number

  bool is_other() const { return !is_same && error == 0; }  // another file or none
};
path_match match(const std::filesystem::path& path, const file_identity& identity);
path_match match(const std::filesystem::path& path, int file);

}  // namespace files
