#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <string_view>

#include "files/system_calls.h"

namespace files {

namespace {

namespace fs = std::filesystem;

int result(int returned) { return returned < 0 ? -errno : returned; }

// Without O_NONBLOCK, open() of a pipe waits for its other end.
constexpr int always = O_NONBLOCK | O_CLOEXEC | O_NOCTTY;

// The number that stands for a kind of file, see file_error.cpp.
int refusal_of(mode_t mode) {
  if (S_ISREG(mode)) return 0;
  if (S_ISDIR(mode)) return -EISDIR;
  if (S_ISFIFO(mode)) return -ESPIPE;
  return S_ISSOCK(mode) ? -ENOTSOCK : -ENODEV;
}

// Returns the file, or closes it and returns the refusal.
int close_if_refused(int file, int refusal) {
  if (refusal == 0) return file;
  close(file);
  return refusal;
}

int open_regular(const fs::path& path, int flags) {
  const int file = open(path.c_str(), flags | always, 0666);
  struct stat status = {};
  if (file < 0) {
    // A socket, or a pipe without its other end.
    const bool is_other = errno == ENXIO;
    return is_other && stat(path.c_str(), &status) == 0 ? refusal_of(status.st_mode) : -errno;
  }
  return close_if_refused(file, fstat(file, &status) < 0 ? -errno : refusal_of(status.st_mode));
}

int open_to_read(const fs::path& path) { return open_regular(path, O_RDONLY); }

// Without O_CREAT, which the system may refuse for another user's file in a sticky folder.
int open_to_write(const fs::path& path) { return open_regular(path, O_WRONLY); }

// A file that O_EXCL creates is a regular one.
int open_new(const fs::path& path, bool is_private) {
  const mode_t permissions = is_private ? 0600 : 0666;
  return result(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | always, permissions));
}

// Reading is enough to lock the file of another user.
int open_lock(const fs::path& path) {
  const int made = open_new(path, false);
  // The umask may keep others out, so that they could not lock the file.
  if (made >= 0) fchmod(made, 0666);
  if (made != -EEXIST) return made;
  int file = open_regular(path, O_WRONLY | O_NOFOLLOW);
  if (file == -EACCES) file = open_regular(path, O_RDONLY | O_NOFOLLOW);
  if (file == -ENOENT) return -EWOULDBLOCK;
  if (file < 0) return file;
  // A file with several names may be a private file of the user under another name.
  struct stat status = {};
  return close_if_refused(file, fstat(file, &status) < 0 ? -errno
                                : status.st_nlink > 1    ? -EMLINK
                                                         : 0);
}

std::int64_t read_some(int file, std::byte* to, std::size_t count) {
  const ssize_t moved = read(file, to, count);
  return moved < 0 ? -errno : moved;
}

std::int64_t write_some(int file, const std::byte* from, std::size_t count) {
  const ssize_t moved = write(file, from, count);
  return moved < 0 ? -errno : moved;
}

std::int64_t copy_some(int from, int to, std::size_t count) {
  const ssize_t moved = copy_file_range(from, nullptr, to, nullptr, count, 0);
  return moved < 0 ? -errno : moved;
}

std::int64_t seek_to(int file, std::int64_t offset) {
  const off_t at = lseek(file, offset, SEEK_SET);
  return at < 0 ? -errno : at;
}

int set_size(int file, std::int64_t size) { return result(ftruncate(file, size)); }

void fill(file_info& info, const struct stat& status) {
  constexpr std::uint64_t nanoseconds_per_second = 1000000000;
  info.stamp.identity = {static_cast<std::uint64_t>(status.st_dev),
                         static_cast<std::uint64_t>(status.st_ino)};
  info.stamp.size = status.st_size;
  // Unsigned, as times after the year 2262 overflow. Stamps are only compared for equality.
  info.stamp.modified = static_cast<std::int64_t>(
      static_cast<std::uint64_t>(status.st_mtim.tv_sec) * nanoseconds_per_second +
      static_cast<std::uint64_t>(status.st_mtim.tv_nsec));
  info.is_file = S_ISREG(status.st_mode);
  info.is_link = S_ISLNK(status.st_mode);
}

int info_of(int file, file_info& info) {
  struct stat status = {};
  if (fstat(file, &status) < 0) return -errno;
  fill(info, status);
  return 0;
}

int info_at(const fs::path& path, file_info& info) {
  struct stat status = {};
  if (lstat(path.c_str(), &status) < 0) return -errno;
  fill(info, status);
  return 0;
}

constexpr const char* access_list = "system.posix_acl_access";

// With an access control list the group bits of the mode are its mask, so the list comes first.
void copy_access_list(int file, const fs::path& from) {
  std::array<char, 65536> list = {};
  const ssize_t size = getxattr(from.c_str(), access_list, list.data(), list.size());
  if (size < 0 ||
      fsetxattr(file, access_list, list.data(), static_cast<std::size_t>(size), 0) < 0) {
    fremovexattr(file, access_list);  // the default list of the folder
  }
}

// If the group cannot be set, the file's current group gets only the permissions of others.
int copy_permissions(int file, const fs::path& from) {
  struct stat old = {};
  if (lstat(from.c_str(), &old) < 0) return -errno;
  mode_t permissions = old.st_mode & 0777U;
  if (fchown(file, old.st_uid, old.st_gid) == 0 ||
      fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0) {
    copy_access_list(file, from);
  } else {
    fremovexattr(file, access_list);
    permissions &= 0707U;
    permissions |= (permissions & 07U) << 3U;
  }
  return result(fchmod(file, permissions));
}

int lock(int file) { return result(flock(file, LOCK_EX | LOCK_NB)); }

int flush_to_disk(int file) { return result(fsync(file)); }

// close() closes the file even if it is interrupted, so it must not be made again.
int close_file(int file) {
  const int closed = result(close(file));
  return closed == -EINTR ? 0 : closed;
}

int remove_file(const fs::path& path) { return result(unlink(path.c_str())); }

// Some file systems write a file to the disk at once when it is renamed over another one. That
// takes far longer than to exchange both and to remove the old file.
int replace(const fs::path& file, const fs::path& target) {
#ifdef RENAME_EXCHANGE
  const auto exchange = [&] {
    return renameat2(AT_FDCWD, file.c_str(), AT_FDCWD, target.c_str(), RENAME_EXCHANGE) == 0;
  };
  if (exchange()) {
    if (unlink(file.c_str()) == 0) return 0;
    if (!exchange()) return -errno;  // the old file cannot be removed
  }
#endif
  return result(rename(file.c_str(), target.c_str()));
}

int flush_folder(const fs::path& folder) {
  const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return -errno;
  const int flushed = result(fsync(opened));
  close(opened);
  // Some file systems cannot flush folders, which is not an error of the file in it.
  return flushed == -EINVAL ? 0 : flushed;
}

// A stat call is needed only for links and on file systems that do not fill in d_type.
listed_entry listed_as(const dirent& entry, int folder) {
  listed_entry listed{.name = entry.d_name};
  listed.is_hidden = is_hidden_name(listed.name);
  if (entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN) {
    struct stat status = {};
    if (fstatat(folder, entry.d_name, &status, 0) < 0) return listed;
    listed.is_folder = S_ISDIR(status.st_mode);
    listed.is_file = S_ISREG(status.st_mode);
  } else {
    listed.is_folder = entry.d_type == DT_DIR;
    listed.is_file = entry.d_type == DT_REG;
  }
  return listed;
}

int list(const fs::path& folder, std::vector<listed_entry>& found) {
  DIR* opened = opendir(folder.c_str());
  if (opened == nullptr) return -errno;
  const struct closing {
    DIR* opened;
    ~closing() { closedir(opened); }
  } guard{opened};
  found.clear();
  errno = 0;
  while (const dirent* entry = readdir(opened)) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") found.push_back(listed_as(*entry, dirfd(opened)));
    errno = 0;
  }
  return -errno;
}

}  // namespace

system_call_table system_calls = {
    .open_to_read = open_to_read,
    .open_to_write = open_to_write,
    .open_new = open_new,
    .open_lock = open_lock,
    .read_some = read_some,
    .write_some = write_some,
    .copy_some = copy_some,
    .seek_to = seek_to,
    .set_size = set_size,
    .info_of = info_of,
    .info_at = info_at,
    .copy_permissions = copy_permissions,
    .lock = lock,
    .flush_to_disk = flush_to_disk,
    .close_file = close_file,
    .remove_file = remove_file,
    .replace = replace,
    .flush_folder = flush_folder,
    .list = list,
};

fs::path for_system(const fs::path& path) { return path; }

void ignore_size_limit_signal() { std::signal(SIGXFSZ, SIG_IGN); }

int errno_number(const std::error_code& reason) { return reason.value(); }

}  // namespace files
