#include <windows.h>

#include <cerrno>
#include <system_error>

#include <ntstatus.h>
#include <winternl.h>

#include "files/last_error.h"
#include "files/system_calls.h"

extern "C" NTSTATUS NTAPI RtlGetLastNtStatus();

namespace files {

namespace {

// What the standard library does not know, or reports as lack of permission.
int errno_of(DWORD error) {
  switch (error) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_DELETE_PENDING:
      return EBUSY;
    case ERROR_WRITE_PROTECT:
      return EROFS;
    case ERROR_FILE_TOO_LARGE:
      return EFBIG;
    case ERROR_DIRECTORY:
      return ENOTDIR;
    case ERROR_FILENAME_EXCED_RANGE:
      return ENAMETOOLONG;
    case ERROR_NOT_READY:
    case ERROR_NO_MEDIA_IN_DRIVE:
    case ERROR_UNRECOGNIZED_VOLUME:
    case ERROR_DEV_NOT_EXIST:
    case ERROR_DEVICE_NOT_CONNECTED:
    case ERROR_DEVICE_REMOVED:
    case ERROR_FILE_INVALID:  // the volume has changed under the open file
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_NETNAME_DELETED:
    case ERROR_NETWORK_UNREACHABLE:
    case ERROR_UNEXP_NET_ERR:
    case ERROR_SEM_TIMEOUT:
      return ENXIO;
    default:
      break;
  }
  const std::error_code reason(static_cast<int>(error), std::system_category());
  const std::error_condition known = reason.default_error_condition();
  return known.category() == std::generic_category() ? known.value() : EIO;
}

}  // namespace

int errno_number(const std::error_code& reason) {
  return reason.category() == std::system_category() ? errno_of(static_cast<DWORD>(reason.value()))
                                                     : reason.value();
}

int last_error() {
  const DWORD error = GetLastError();
  const bool vanishes =
      error == ERROR_ACCESS_DENIED && RtlGetLastNtStatus() == STATUS_DELETE_PENDING;
  return -errno_of(vanishes ? DWORD{ERROR_DELETE_PENDING} : error);
}

}  // namespace files
