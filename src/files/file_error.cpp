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

struct known_error {
  int errno_number;
  file_error_number number;
  const char* reason;
};

constexpr auto known_errors = std::to_array<known_error>({
    {ENOENT, file_error_number::file_not_found, "it is not there"},
    {ENOTDIR, file_error_number::path_not_found, "it is not in a folder"},
    {EEXIST, file_error_number::file_exists, "it is there already"},
    {EACCES, file_error_number::permission_denied, "access is not allowed"},
    {EPERM, file_error_number::permission_denied, "access is not allowed"},
    {EROFS, file_error_number::permission_denied, "the disk cannot be written to"},
    {EBUSY, file_error_number::permission_denied, "it is in use"},
    {ELOOP, file_error_number::permission_denied, "it is a link"},
    {EMLINK, file_error_number::permission_denied, "it has several names"},
    // The kinds that system_calls refuses to open.
    {ESPIPE, file_error_number::permission_denied, "it is a pipe"},
    {ENOTSOCK, file_error_number::permission_denied, "it is a socket"},
    {ENODEV, file_error_number::permission_denied, "it is a device"},
    {EISDIR, file_error_number::path_access, "it is a folder"},
    {ENXIO, file_error_number::device_unavailable, "its drive does not answer"},
    {ENOSPC, file_error_number::disk_full, "the disk is full"},
#ifdef EDQUOT
    {EDQUOT, file_error_number::disk_full, "the disk is full"},
#endif
    {EFBIG, file_error_number::disk_full, "it would be larger than the system allows"},
    {ENAMETOOLONG, file_error_number::bad_file_name, "its name is too long"},
});

}  // namespace

file_error::file_error(file_error_number what_number, file_action what_failed,
                       std::u8string subject, const std::string& reason)
    : error({std::move(subject), predicate_of(what_failed, reason)}),
      number(what_number),
      action(what_failed) {}

void fail(const std::u8string& subject, file_action action, std::int64_t status) {
  const int reason = static_cast<int>(-status);
  for (const known_error& known : known_errors) {
    if (known.errno_number != reason) continue;
    throw file_error(known.number, action, subject, known.reason);
  }
  throw file_error(
      reason == EINVAL ? file_error_number::bad_file_name : file_error_number::device_error, action,
      subject, std::strerror(reason));
}

}  // namespace files
