#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

#include "files/system_calls.h"

namespace files {

namespace {

namespace fs = std::filesystem;

int last_error() {
  return -errno_number({static_cast<int>(GetLastError()), std::system_category()});
}

int result(BOOL done) { return done != 0 ? 0 : last_error(); }

// Windows uses only the low 32 bits of a handle, so an int holds one.
HANDLE handle_of(int file) { return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(file)); }

bool has_attribute(const fs::path& path, DWORD wanted) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & wanted) != 0;
}

void set_read_only(const fs::path& path, bool wanted) {
  const DWORD others = GetFileAttributesW(path.c_str()) & ~DWORD{FILE_ATTRIBUTE_READONLY};
  SetFileAttributesW(path.c_str(), others | (wanted ? FILE_ATTRIBUTE_READONLY : 0));
}

// Names such as "C:\NUL" and "C:\icons\com1" mean devices. Even opening one can have an effect.
bool is_device(const fs::path& path) {
  std::array<wchar_t, 32> whole = {};
  const DWORD length = GetFullPathNameW(path.c_str(), whole.size(), whole.data(), nullptr);
  return length < whole.size() && std::wstring_view(whole.data(), length).starts_with(L"\\\\.\\");
}

int open_regular(const fs::path& path, DWORD access, DWORD disposition) {
  if (is_device(path)) return -EACCES;
  const HANDLE file =
      CreateFileW(path.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    const int reason = last_error();
    return has_attribute(path, FILE_ATTRIBUTE_DIRECTORY) ? -EISDIR : reason;
  }
  if (GetFileType(file) == FILE_TYPE_DISK) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(file));
  }
  CloseHandle(file);
  return -EACCES;
}

DWORD block_size(std::size_t count) {
  constexpr std::size_t max = 1U << 30U;
  return static_cast<DWORD>(std::min(count, max));
}

int open_to_read(const fs::path& path) { return open_regular(path, GENERIC_READ, OPEN_EXISTING); }

int open_to_write(const fs::path& path) { return open_regular(path, GENERIC_WRITE, OPEN_EXISTING); }

// On Windows a new file inherits the permissions of its folder.
int open_new(const fs::path& path, bool /*is_private*/) {
  return open_regular(path, GENERIC_WRITE, CREATE_NEW);
}

int open_lock(const fs::path& path) {
  if (has_attribute(path, FILE_ATTRIBUTE_REPARSE_POINT)) return -ELOOP;
  const int file = open_regular(path, GENERIC_WRITE, OPEN_ALWAYS);
  BY_HANDLE_FILE_INFORMATION found = {};
  if (file < 0 || GetFileInformationByHandle(handle_of(file), &found) == 0) return file;
  if (found.nNumberOfLinks <= 1) return file;
  CloseHandle(handle_of(file));
  return -EMLINK;
}

std::int64_t read_some(int file, std::byte* to, std::size_t count) {
  DWORD moved = 0;
  const BOOL done = ReadFile(handle_of(file), to, block_size(count), &moved, nullptr);
  return done != 0 ? std::int64_t{moved} : last_error();
}

std::int64_t write_some(int file, const std::byte* from, std::size_t count) {
  DWORD moved = 0;
  const BOOL done = WriteFile(handle_of(file), from, block_size(count), &moved, nullptr);
  return done != 0 ? std::int64_t{moved} : last_error();
}

std::int64_t seek_to(int file, std::int64_t offset) {
  LARGE_INTEGER at = {};
  at.QuadPart = offset;
  return SetFilePointerEx(handle_of(file), at, &at, FILE_BEGIN) != 0 ? at.QuadPart : last_error();
}

int set_size(int file, std::int64_t size) {
  const std::int64_t at = seek_to(file, size);
  return at < 0 ? static_cast<int>(at) : result(SetEndOfFile(handle_of(file)));
}

std::uint64_t join(DWORD high, DWORD low) { return std::uint64_t{high} << 32U | low; }

int info_of(int file, file_info& info) {
  constexpr std::uint64_t nanoseconds_per_tick = 100;
  BY_HANDLE_FILE_INFORMATION found = {};
  if (GetFileInformationByHandle(handle_of(file), &found) == 0) return last_error();
  const FILETIME& modified = found.ftLastWriteTime;
  info.stamp.identity = {found.dwVolumeSerialNumber,
                         join(found.nFileIndexHigh, found.nFileIndexLow)};
  info.stamp.size = static_cast<std::int64_t>(join(found.nFileSizeHigh, found.nFileSizeLow));
  info.stamp.modified = static_cast<std::int64_t>(
      join(modified.dwHighDateTime, modified.dwLowDateTime) * nanoseconds_per_tick);
  constexpr DWORD others = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  info.is_file = (found.dwFileAttributes & others) == 0;
  info.is_link = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  return 0;
}

int info_at(const fs::path& path, file_info& info) {
  const HANDLE file = CreateFileW(
      path.c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (file == INVALID_HANDLE_VALUE) return last_error();
  const int status = info_of(static_cast<int>(reinterpret_cast<std::intptr_t>(file)), info);
  CloseHandle(file);
  return status;
}

int copy_permissions(int /*file*/, const fs::path& /*from*/) { return 0; }

// A locked byte cannot be read, so the lock is on one after the end of any file.
int lock(int file) {
  OVERLAPPED at = {};
  at.OffsetHigh = 0x7FFFFFFF;
  const BOOL done = LockFileEx(handle_of(file), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY,
                               0, 1, 0, &at);
  if (done != 0) return 0;
  return GetLastError() == ERROR_LOCK_VIOLATION ? -EWOULDBLOCK : last_error();
}

int flush_to_disk(int file) { return result(FlushFileBuffers(handle_of(file))); }

int close_file(int file) { return result(CloseHandle(handle_of(file))); }

// Windows neither deletes nor replaces a read-only file, so the attribute is cleared before.
int remove_file(const fs::path& path) {
  const bool read_only = has_attribute(path, FILE_ATTRIBUTE_READONLY);
  if (read_only) set_read_only(path, false);
  const int removed = result(DeleteFileW(path.c_str()));
  if (read_only && removed < 0) set_read_only(path, true);
  return removed;
}

int replace(const fs::path& file, const fs::path& target) {
  const bool read_only = has_attribute(target, FILE_ATTRIBUTE_READONLY);
  if (read_only) set_read_only(target, false);
  const int replaced = result(MoveFileExW(file.c_str(), target.c_str(),
                                          MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
  if (read_only && replaced < 0) set_read_only(target, true);
  return replaced;
}

// MOVEFILE_WRITE_THROUGH has flushed the rename already, and Windows cannot flush a folder.
int flush_folder(const fs::path& /*folder*/) { return 0; }

int list(const fs::path& folder, std::vector<listed_entry>& found) {
  found.clear();
  std::error_code failed;
  for (fs::directory_iterator at(folder, failed), end; !failed && at != end; at.increment(failed)) {
    std::error_code unknown;
    listed_entry listed{.name = at->path().filename().native()};
    listed.is_hidden = listed.name.front() == '.' ||
                       has_attribute(at->path(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    listed.is_folder = at->is_directory(unknown);
    listed.is_file = at->is_regular_file(unknown);
    found.push_back(std::move(listed));
  }
  return failed ? -errno_number(failed) : 0;
}

}  // namespace

system_call_table system_calls = {
    .open_to_read = open_to_read,
    .open_to_write = open_to_write,
    .open_new = open_new,
    .open_lock = open_lock,
    .read_some = read_some,
    .write_some = write_some,
    .copy_some = +[](int, int, std::size_t) -> std::int64_t { return -ENOSYS; },
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

void ignore_size_limit_signal() {}

int errno_number(const std::error_code& reason) {
  const std::error_condition known = reason.default_error_condition();
  return known.category() == std::generic_category() ? known.value() : EIO;
}

}  // namespace files
