#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

#include "files/last_error.h"
#include "files/system_calls.h"

namespace files {

namespace {

namespace fs = std::filesystem;

constexpr DWORD share_all = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// A virus scanner holds a new file for a moment.
constexpr int max_tries = 20;
constexpr DWORD pause_in_milliseconds = 25;

int result(BOOL done) { return done != 0 ? 0 : last_error(); }

// Windows uses only the low 32 bits of a handle, so an int holds one.
HANDLE handle_of(int file) { return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(file)); }

int as_file(HANDLE opened) { return static_cast<int>(reinterpret_cast<std::intptr_t>(opened)); }

DWORD attributes_of(const fs::path& path) { return GetFileAttributesW(for_system(path).c_str()); }

bool has_attribute(const fs::path& path, DWORD wanted) {
  const DWORD attributes = attributes_of(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & wanted) != 0;
}

void set_read_only(const fs::path& path, bool wanted) {
  const DWORD others = attributes_of(path) & ~DWORD{FILE_ATTRIBUTE_READONLY};
  SetFileAttributesW(for_system(path).c_str(), others | (wanted ? FILE_ATTRIBUTE_READONLY : 0));
}

// Windows neither deletes nor replaces a read-only file, so `call` is made without the attribute.
int without_read_only(const fs::path& path, const auto& call) {
  const bool read_only = has_attribute(path, FILE_ATTRIBUTE_READONLY);
  if (read_only) set_read_only(path, false);
  const int status = call();
  if (read_only && status < 0) set_read_only(path, true);
  return status;
}

// Names such as "C:\NUL" and "C:\icons\com1" mean devices. Even opening one can have an effect.
bool is_device(const fs::path& path) {
  std::array<wchar_t, 32> whole = {};
  const DWORD length = GetFullPathNameW(path.c_str(), whole.size(), whole.data(), nullptr);
  return length < whole.size() && std::wstring_view(whole.data(), length).starts_with(L"\\\\.\\");
}

int open_regular(const fs::path& path, DWORD access, DWORD disposition) {
  if (is_device(path)) return -EACCES;
  const HANDLE file = CreateFileW(for_system(path).c_str(), access, share_all, nullptr, disposition,
                                  FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    const int reason = last_error();
    return has_attribute(path, FILE_ATTRIBUTE_DIRECTORY) ? -EISDIR : reason;
  }
  if (GetFileType(file) == FILE_TYPE_DISK) return as_file(file);
  CloseHandle(file);
  return -EACCES;
}

// True if a program has opened the file and does not let others replace it.
bool is_held(const fs::path& path) {
  const HANDLE file = CreateFileW(for_system(path).c_str(), DELETE, share_all, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (file == INVALID_HANDLE_VALUE) return last_error() == -EBUSY;
  CloseHandle(file);
  return false;
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

// Other reparse points are files with their content elsewhere, such as in a cloud.
bool is_link(DWORD attributes, HANDLE file) {
  if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return false;
  FILE_ATTRIBUTE_TAG_INFO found = {};
  return GetFileInformationByHandleEx(file, FileAttributeTagInfo, &found, sizeof found) == 0 ||
         IsReparseTagNameSurrogate(found.ReparseTag);
}

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
  info.is_link = is_link(found.dwFileAttributes, handle_of(file));
  info.is_file = !info.is_link && (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
  return 0;
}

int info_at(const fs::path& path, file_info& info) {
  const HANDLE file =
      CreateFileW(for_system(path).c_str(), FILE_READ_ATTRIBUTES, share_all, nullptr, OPEN_EXISTING,
                  FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
  if (file == INVALID_HANDLE_VALUE) return last_error();
  const int status = info_of(as_file(file), info);
  CloseHandle(file);
  return status;
}

// A file that another copy has just removed is there until that copy closes it.
int open_lock(const fs::path& path) {
  file_info found;
  if (info_at(path, found) >= 0 && found.is_link) return -ELOOP;
  const int file = open_regular(path, GENERIC_WRITE, OPEN_ALWAYS);
  if (file == -EBUSY) return -EWOULDBLOCK;
  BY_HANDLE_FILE_INFORMATION opened = {};
  if (file < 0 || GetFileInformationByHandle(handle_of(file), &opened) == 0) return file;
  if (opened.nNumberOfLinks <= 1) return file;
  CloseHandle(handle_of(file));
  return -EMLINK;
}

// The times of zero stay as they are.
int copy_permissions(int file, const fs::path& from) {
  constexpr DWORD copied = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                           FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
  const DWORD attributes = attributes_of(from);
  if (attributes == INVALID_FILE_ATTRIBUTES) return last_error();
  FILE_BASIC_INFO info = {};
  info.FileAttributes = (attributes & copied) | FILE_ATTRIBUTE_ARCHIVE;
  return result(SetFileInformationByHandle(handle_of(file), FileBasicInfo, &info, sizeof info));
}

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

int remove_file(const fs::path& path) {
  return without_read_only(path, [whole = for_system(path)] {
    for (int tries = 1;; ++tries) {
      const int removed = result(DeleteFileW(whole.c_str()));
      if (removed != -EBUSY || tries == max_tries) return removed;
      Sleep(pause_in_milliseconds);
    }
  });
}

// Windows says that access is denied if a program has opened the old file.
int move_over(const fs::path& file, const fs::path& target) {
  for (int tries = 1;; ++tries) {
    const int moved = result(MoveFileExW(for_system(file).c_str(), for_system(target).c_str(),
                                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
    if (moved != -EBUSY && moved != -EACCES) return moved;
    const bool held = is_held(target) || is_held(file);
    if (!held || tries == max_tries) return held ? -EBUSY : moved;
    Sleep(pause_in_milliseconds);
  }
}

// Both paths can be spellings of one name.
int replace(const fs::path& file, const fs::path& target) {
  const bool read_only = has_attribute(file, FILE_ATTRIBUTE_READONLY);
  const int replaced = without_read_only(target, [&] { return move_over(file, target); });
  if (replaced >= 0 && read_only) set_read_only(target, true);
  return replaced;
}

// MOVEFILE_WRITE_THROUGH has flushed the rename already, and Windows cannot flush a folder.
int flush_folder(const fs::path& /*folder*/) { return 0; }

// Only a link needs another query.
listed_entry listed_as(const fs::path& folder, const WIN32_FIND_DATAW& entry) {
  const DWORD attributes = entry.dwFileAttributes;
  listed_entry listed{.name = entry.cFileName};
  listed.is_hidden = is_hidden_name(listed.name) ||
                     (attributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM)) != 0;
  const bool is_link = (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                       IsReparseTagNameSurrogate(entry.dwReserved0);
  if (is_link) {
    std::error_code unknown;
    const fs::file_status status = fs::status(for_system(folder / listed.name), unknown);
    listed.is_folder = fs::is_directory(status);
    listed.is_file = fs::is_regular_file(status);
  } else {
    listed.is_folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    listed.is_file = !listed.is_folder;
  }
  return listed;
}

// The root of an empty drive has not even an entry ".".
int list(const fs::path& folder, std::vector<listed_entry>& found) {
  WIN32_FIND_DATAW entry = {};
  const HANDLE search = FindFirstFileExW(for_system(folder / L"*").c_str(), FindExInfoBasic, &entry,
                                         FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
  found.clear();
  if (search == INVALID_HANDLE_VALUE) {
    const bool is_empty = GetLastError() == ERROR_FILE_NOT_FOUND;
    return is_empty && has_attribute(folder, FILE_ATTRIBUTE_DIRECTORY) ? 0 : last_error();
  }
  const struct closing {
    HANDLE search;
    ~closing() { FindClose(search); }
  } guard{search};
  do {
    const std::wstring_view name = entry.cFileName;
    if (name != L"." && name != L"..") found.push_back(listed_as(folder, entry));
  } while (FindNextFileW(search, &entry) != 0);
  return GetLastError() == ERROR_NO_MORE_FILES ? 0 : last_error();
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

// A folder must leave room for a short name in it, and the longest paths have 260 characters with a
// NUL, unless they have this prefix. It also turns off the meaning of "/", "." and "..".
fs::path for_system(const fs::path& path) {
  constexpr std::size_t max_plain = 240;
  constexpr DWORD max_long = 32768;
  if (path.native().size() <= max_plain || path.native().starts_with(L"\\\\?\\")) return path;
  std::wstring whole(max_long, L'\0');
  whole.resize(GetFullPathNameW(path.c_str(), max_long, whole.data(), nullptr));
  if (whole.empty() || whole.size() >= max_long) return path;
  return whole.starts_with(L"\\\\") ? L"\\\\?\\UNC" + whole.substr(1) : L"\\\\?\\" + whole;
}

void ignore_size_limit_signal() {}

}  // namespace files
