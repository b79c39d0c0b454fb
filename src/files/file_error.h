#pragma once

#include <cstdint>
#include <exception>
#include <string>

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

// What failed. `replace` is the rename of a complete new file.
enum class file_action : std::uint8_t { find, open, read, create, write, replace };

// A failed operation on a file, a folder or a drive.
class file_error : public std::exception {
 public:
  // `subject` is a path as messages show it, `reason` a sentence fragment.
  file_error(file_error_number number, file_action action, std::string subject,
             const std::string& reason);
  const char* what() const noexcept override { return text.c_str(); }

  file_error_number number;
  file_action action;
  std::string subject;
  std::string predicate;  // "cannot be read: it is not there."
  std::string text;       // subject and predicate
};

// Throws file_error for `status`, a negative errno number.
[[noreturn]] void fail(const std::string& subject, file_action action, std::int64_t status);

}  // namespace files
