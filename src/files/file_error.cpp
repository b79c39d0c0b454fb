#include "files/file_error.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

namespace files {

namespace {

std::string predicate_of(file_action action, const std::string& reason) {
  constexpr std::array<const char*, 7> verbs = {"found",   "opened",  "read",      "made",
                                                "written", "written", "written to"};
  return std::string("cannot be ") + verbs[static_cast<std::size_t>(action)] + ": " + reason + ".";
}

file_error_number number_of(int errno_number) {
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
    case ELOOP:
    case EMLINK:
    case ESPIPE:
    case ENOTSOCK:
    case ENODEV:
      return file_error_number::permission_denied;
    case EISDIR:
      return file_error_number::path_access;
    case ENXIO:
      return file_error_number::device_unavailable;
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

std::string reason_of(int errno_number) {
  switch (errno_number) {
    case ENOENT:
      return "it is not there";
    case EACCES:
    case EPERM:
      return "access is not allowed";
    case EBUSY:
      return "it is in use";
    case EISDIR:
      return "it is a folder";
    case ENXIO:
      return "its drive does not answer";
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
      return "it is not in a folder";
    case ELOOP:
      return "it is a link";
    case EMLINK:
      return "it has several names";
    // The kinds that system_calls refuses to open.
    case ESPIPE:
      return "it is a pipe";
    case ENOTSOCK:
      return "it is a socket";
    case ENODEV:
      return "it is a device";
    case ENAMETOOLONG:
      return "its name is too long";
    case EFBIG:
      return "it would be larger than the system allows";
    default:
      return std::strerror(errno_number);
  }
}

}  // namespace

file_error::file_error(file_error_number what_number, file_action what_failed,
                       std::u8string subject, const std::string& reason)
    : error({std::move(subject), predicate_of(what_failed, reason)}),
      number(what_number),
      action(what_failed) {}

void fail(const std::u8string& subject, file_action action, std::int64_t status) {
  const int reason = static_cast<int>(-status);
  throw file_error(number_of(reason), action, subject, reason_of(reason));
}

}  // namespace files
