#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string_view>

#include "platform/file_calls.h"

namespace platform::file_calls {

namespace {

int result(int outcome) { return outcome < 0 ? -errno : outcome; }

// O_NONBLOCK keeps the opening of a pipe from waiting for its other end.
int open_normal(const std::filesystem::path& place, int flags) {
  const int file = open(place.c_str(), flags | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666);
  if (file < 0) return errno == ENXIO ? -EACCES : -errno;
  struct stat facts = {};
  if (fstat(file, &facts) == 0 && S_ISREG(facts.st_mode)) return file;
  const int reason = S_ISDIR(facts.st_mode) ? EISDIR : EACCES;
  close(file);
  return -reason;
}

// Only a link, or an entry of a file system that tells no kinds, has to be looked at.
listed_entry listed_as(const dirent& entry, int folder) {
  listed_entry listed{.name = entry.d_name, .is_hidden = entry.d_name[0] == '.'};
  if (entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN) {
    struct stat facts = {};
    if (fstatat(folder, entry.d_name, &facts, 0) < 0) return listed;
    listed.is_folder = S_ISDIR(facts.st_mode);
    listed.is_file = S_ISREG(facts.st_mode);
  } else {
    listed.is_folder = entry.d_type == DT_DIR;
    listed.is_file = entry.d_type == DT_REG;
  }
  return listed;
}

}  // namespace

int open_to_read(const std::filesystem::path& place) { return open_normal(place, O_RDONLY); }

int open_to_write(const std::filesystem::path& place) {
  return open_normal(place, O_WRONLY | O_CREAT);
}

int open_new(const std::filesystem::path& place) {
  return open_normal(place, O_WRONLY | O_CREAT | O_EXCL);
}

std::int64_t read_some(int file, std::byte* to, std::size_t count) {
  for (;;) {
    const ssize_t moved = read(file, to, count);
    if (moved >= 0) return moved;
    if (errno != EINTR) return -errno;
  }
}

std::int64_t write_some(int file, const std::byte* from, std::size_t count) {
  for (;;) {
    const ssize_t moved = write(file, from, count);
    if (moved >= 0) return moved;
    if (errno != EINTR) return -errno;
  }
}

std::int64_t seek_to(int file, std::int64_t offset) {
  const off_t at = lseek(file, offset, SEEK_SET);
  return at < 0 ? -errno : at;
}

std::int64_t size_of(int file) {
  struct stat facts = {};
  return fstat(file, &facts) < 0 ? -errno : static_cast<std::int64_t>(facts.st_size);
}

int flush_to_disk(int file) { return result(fsync(file)); }

int close_file(int file) { return result(close(file)); }

int remove_file(const std::filesystem::path& place) { return result(unlink(place.c_str())); }

int replace(const std::filesystem::path& file, const std::filesystem::path& target) {
  return result(rename(file.c_str(), target.c_str()));
}

int flush_folder(const std::filesystem::path& folder) {
  const int opened = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return -errno;
  const int flushed = result(fsync(opened));
  close(opened);
  // Some file systems cannot flush a folder; that is no fault of the file in it.
  return flushed == -EINVAL ? 0 : flushed;
}

int list(const std::filesystem::path& folder, std::vector<listed_entry>& found) {
  DIR* opened = opendir(folder.c_str());
  if (opened == nullptr) return -errno;
  errno = 0;
  while (const dirent* entry = readdir(opened)) {
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") found.push_back(listed_as(*entry, dirfd(opened)));
    errno = 0;
  }
  const int outcome = -errno;
  closedir(opened);
  return outcome;
}

int errno_number(const std::error_code& reason) { return reason.value(); }

}  // namespace platform::file_calls
