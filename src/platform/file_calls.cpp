#include "platform/file_calls.h"

#include <cerrno>
#include <cstring>

namespace platform::file_calls {

file_error_number error_number(int errno_number) {
  switch (errno_number) {
    case ENOENT:
      return file_error_number::file_not_found;
    case ENOTDIR:
      return file_error_number::path_not_found;
    case EEXIST:
      return file_error_number::file_exists;
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
      return file_error_number::permission_denied;
    case EISDIR:
      return file_error_number::path_access;
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
    case EFBIG:
      return file_error_number::disk_full;
    case EINVAL:
    case ENAMETOOLONG:
      return file_error_number::bad_file_name;
    default:
      return file_error_number::device_error;
  }
}

std::string error_words(int errno_number) {
  switch (errno_number) {
    case ENOENT:
      return "it is not there";
    case EACCES:
    case EPERM:
    case ENOTSUP:  // asked for the size of what is no file
      return "access is not allowed";
    case EBUSY:
      return "it is in use";
    case EISDIR:
      return "it is a folder";
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return "the disk is full";
    case EROFS:
      return "the disk cannot be written to";
    case EEXIST:
      return "it is there already";
    case ENOTDIR:
      return "it does not lie in a folder";
    case ENAMETOOLONG:
      return "its name is too long";
    default:
      return std::strerror(errno_number);
  }
}

}  // namespace platform::file_calls
