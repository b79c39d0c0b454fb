#pragma once

#include <exception>
#include <string>
#include <utility>

namespace files {

// Error numbers that messages show.
enum class file_error_number {
  file_not_found = 53,
  device_error = 57,
  file_exists = 58,
  disk_full = 61,
  bad_file_name = 52,
  device_unavailable = 68,
  permission_denied = 70,
  path_access = 75,
  path_not_found = 76,
};

// A failed operation on a file, a folder or a drive.
struct file_error : std::exception {
  file_error(file_error_number what_failed, std::string sentence)
      : number(what_failed), text(std::move(sentence)) {}
  const char* what() const noexcept override { return text.c_str(); }

  file_error_number number;
  std::string text;  // a sentence for the user, with the path and the reason
};

}  // namespace files
