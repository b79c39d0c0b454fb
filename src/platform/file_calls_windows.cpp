#include <windows.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <string_view>
#include <utility>

#include "platform/file_calls.h"

namespace platform::file_calls {

namespace {

namespace fs = std::filesystem;

int last_error() {
  return -errno_number({static_cast<int>(GetLastError()), std::system_category()});
}

int result(BOOL done) { return done != 0 ? 0 : last_error(); }

// Of a handle Windows uses no more bits than a number has.
HANDLE handle_of(int file) { return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(file)); }

bool has_attribute(const fs::path& place, DWORD wanted) {
  const DWORD attributes = GetFileAttributesW(place.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & wanted) != 0;
}

void set_read_only(const fs::path& place, bool wanted) {
  const DWORD others = GetFileAttributesW(place.c_str()) & ~DWORD{FILE_ATTRIBUTE_READONLY};
  SetFileAttributesW(place.c_str(), others | (wanted ? FILE_ATTRIBUTE_READONLY : 0));
}

// The system finds a device in such names as "C:\NUL" and "C:\icons\com1". Even to open one can
// have an effect.
bool is_device(const fs::path& place) {
  std::array<wchar_t, 32> whole = {};
  const DWORD length = GetFullPathNameW(place.c_str(), whole.size(), whole.data(), nullptr);
  return length < whole.size() && std::wstring_view(whole.data(), length).starts_with(L"\\\\.\\");
}

int open_normal(const fs::path& place, DWORD access, DWORD disposition) {
  if (is_device(place)) return -EACCES;
  const HANDLE file =
      CreateFileW(place.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    const int reason = last_error();
    return has_attribute(place, FILE_ATTRIBUTE_DIRECTORY) ? -EISDIR : reason;
  }
  if (GetFileType(file) == FILE_TYPE_DISK) {
    return static_cast<int>(reinterpret_cast<std::intptr_t>(file));
  }
  CloseHandle(file);
  return -EACCES;
}

DWORD block(std::size_t count) {
  constexpr std::size_t most = 1U << 30U;
  return static_cast<DWORD>(std::min(count, most));
}

}  // namespace

int open_to_read(const fs::path& place) { return open_normal(place, GENERIC_READ, OPEN_EXISTING); }

int open_to_write(const fs::path& place) { return open_normal(place, GENERIC_WRITE, OPEN_ALWAYS); }

int open_new(const fs::path& place) { return open_normal(place, GENERIC_WRITE, CREATE_NEW); }

std::int64_t read_some(int file, std::byte* to, std::size_t count) {
  DWORD moved = 0;
  const BOOL done = ReadFile(handle_of(file), to, block(count), &moved, nullptr);
  return done != 0 ? std::int64_t{moved} : last_error();
}

std::int64_t write_some(int file, const std::byte* from, std::size_t count) {
  DWORD moved = 0;
  const BOOL done = WriteFile(handle_of(file), from, block(count), &moved, nullptr);
  return done != 0 ? std::int64_t{moved} : last_error();
}

std::int64_t seek_to(int file, std::int64_t offset) {
  LARGE_INTEGER at = {};
  at.QuadPart = offset;
  return SetFilePointerEx(handle_of(file), at, &at, FILE_BEGIN) != 0 ? at.QuadPart : last_error();
}

std::int64_t size_of(int file) {
  LARGE_INTEGER size = {};
  return GetFileSizeEx(handle_of(file), &size) != 0 ? size.QuadPart : last_error();
}

int flush_to_disk(int file) { return result(FlushFileBuffers(handle_of(file))); }

int close_file(int file) { return result(CloseHandle(handle_of(file))); }

// A file marked as read-only is neither deleted nor replaced, so the mark goes first.
int remove_file(const fs::path& place) {
  const bool read_only = has_attribute(place, FILE_ATTRIBUTE_READONLY);
  if (read_only) set_read_only(place, false);
  const int removed = result(DeleteFileW(place.c_str()));
  if (read_only && removed < 0) set_read_only(place, true);
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

// Renaming has written through already, and there is no call for a whole folder.
int flush_folder(const fs::path& /*folder*/) { return 0; }

int list(const fs::path& folder, std::vector<listed_entry>& found) {
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

int errno_number(const std::error_code& reason) {
  const std::error_condition known = reason.default_error_condition();
  return known.category() == std::generic_category() ? known.value() : EIO;
}

}  // namespace platform::file_calls
