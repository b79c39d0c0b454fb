#include "files/file_calls.h"

#include <cerrno>
#include <cstring>

namespace files::file_calls {

namespace {

namespace fs = std::filesystem;

template <typename Call, typename... Arguments>
auto uninterrupted(Call call, Arguments&&... arguments) {
  for (;;) {
    const auto status = call(arguments...);
    if (status != -EINTR) return status;
  }
}

}  // namespace

int open_to_read(const fs::path& path) { return uninterrupted(system_calls.open_to_read, path); }
int open_to_write(const fs::path& path) { return uninterrupted(system_calls.open_to_write, path); }
int open_new(const fs::path& path, bool is_private) {
  return uninterrupted(system_calls.open_new, path, is_private);
}
int open_lock(const fs::path& path) { return uninterrupted(system_calls.open_lock, path); }

std::int64_t read_some(int file, std::byte* to, std::size_t count) {
  return uninterrupted(system_calls.read_some, file, to, count);
}
std::int64_t write_some(int file, const std::byte* from, std::size_t count) {
  return uninterrupted(system_calls.write_some, file, from, count);
}
std::int64_t seek_to(int file, std::int64_t offset) {
  return uninterrupted(system_calls.seek_to, file, offset);
}
int set_size(int file, std::int64_t size) {
  return uninterrupted(system_calls.set_size, file, size);
}

int info_of(int file, file_info& info) { return uninterrupted(system_calls.info_of, file, info); }
int info_at(const fs::path& path, file_info& info) {
  return uninterrupted(system_calls.info_at, path, info);
}
int copy_permissions(int file, const fs::path& from) {
  return uninterrupted(system_calls.copy_permissions, file, from);
}
int lock(int file) { return uninterrupted(system_calls.lock, file); }

int flush_to_disk(int file) { return uninterrupted(system_calls.flush_to_disk, file); }

// close() closes the file even if it is interrupted, so it must not be retried.
int close_file(int file) {
  const int status = system_calls.close_file(file);
  return status == -EINTR ? 0 : status;
}

int remove_file(const fs::path& path) { return uninterrupted(system_calls.remove_file, path); }
int replace(const fs::path& file, const fs::path& target) {
  return uninterrupted(system_calls.replace, file, target);
}
int flush_folder(const fs::path& folder) {
  return uninterrupted(system_calls.flush_folder, folder);
}

int list(const fs::path& folder, std::vector<listed_entry>& found) {
  const std::size_t before = found.size();
  for (;;) {
    const int status = system_calls.list(folder, found);
    if (status != -EINTR) return status;
    found.resize(before);
  }
}

path_match match(const fs::path& path, const file_identity& identity) {
  file_info found;
  const int status = info_at(path, found);
  if (status == -ENOENT || status == -ENOTDIR) return {};
  if (status < 0) return {.error = status};
  return {.is_same = found.stamp.identity == identity};
}

path_match match(const fs::path& path, int file) {
  file_info open;
  const int status = info_of(file, open);
  if (status < 0) return {.error = status};
  return match(path, open.stamp.identity);
}

bool may_be_same_file(const fs::path& path, const file_identity& identity) {
  return identity == file_identity{} || !match(path, identity).is_other();
}

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
    case ELOOP:
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

std::string error_text(int errno_number) {
  switch (errno_number) {
    case ENOENT:
      return "it is not there";
    case EACCES:
    case EPERM:
    case ENOTSUP:  // from std::filesystem::file_size of a folder or a device
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
      return "it is not in a folder";
    case ELOOP:
      return "it is a link";
    case ENAMETOOLONG:
      return "its name is too long";
    case EFBIG:
      return "it would be larger than the system allows";
    default:
      return std::strerror(errno_number);
  }
}

void fail(const std::string& path, const char* what, std::int64_t status) {
  const int number = static_cast<int>(-status);
  throw file_error{error_number(number), path + what + error_text(number) + "."};
}

}  // namespace files::file_calls
