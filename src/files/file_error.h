#pragma once

#include <cstdint>
#include <string>

#include "files/failure.h"

namespace files {

// Error numbers that messages show.
enum class file_error_number {
  bad_file_name = 52,
  file_not_found = 53,
  device_error = 57,
  file_exists = 58,
  disk_full = 61,
  device_unavailable = 68,
  permission_denied = 70,
  path_access = 75,
  path_not_found = 76,
};

// The action that failed. `replace` is the rename of a complete new file, `create_in` the creation
// of any file in a folder.
enum class file_action : std::uint8_t { find, open, read, create, write, replace, create_in };

// A failed operation on a file, a folder or a drive.
struct file_error : error {
  // `subject` is a path as messages show it, `reason` a fragment such as "it is not there".
  file_error(file_error_number what_number, file_action what_failed, std::u8string subject,
             const std::string& reason);

  file_error_number number;
  file_action action;
};

// Throws file_error for `status`, a negative errno number.
[[noreturn]] void fail(const std::u8string& subject, file_action action, std::int64_t status);

}  // namespace files
