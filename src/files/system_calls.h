#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <vector>

#include "files/system_call.h"

// The system calls through which all files are read and written.
namespace files {

// On every system, so that an archive has the same entries wherever it is built.
bool is_hidden_name(const auto& name) { return name.front() == '.'; }

struct listed_entry {
  std::filesystem::path::string_type name;
  bool is_hidden = false;  // by the conventions of the system
  bool is_folder = false;  // links are followed
  bool is_file = false;    // a regular file; links are followed
};

// Paths with the same identity are hard links to the same file.
struct file_identity {
  std::uint64_t device = 0;
  std::uint64_t number = 0;

  friend bool operator==(const file_identity&, const file_identity&) = default;
};

// If the stamp of a path is unchanged, the file was neither replaced nor written to.
struct file_stamp {
  file_identity identity;
  std::int64_t size = 0;      // bytes
  std::int64_t modified = 0;  // nanoseconds

  friend bool operator==(const file_stamp&, const file_stamp&) = default;
};

struct file_info {
  file_stamp stamp;
  bool is_file = false;  // a regular file
  bool is_link = false;  // a symbolic link
};

// Filled in by system_calls_posix.cpp or system_calls_windows.cpp. Tests put failing calls into it.
// Each call returns a negative errno number on failure, and 0 or what its comment says on success.
// A call that a signal interrupts is made again.
struct system_call_table {
  // Return a file descriptor or handle. Folders, devices and pipes are refused and never block.
  system_call<int(const std::filesystem::path& path)> open_to_read;
  // Opens an existing file without truncating it.
  system_call<int(const std::filesystem::path& path)> open_to_write;
  // Creates a file; -EEXIST if the path exists. Only its owner can open a private
  // file until copy_permissions.
  system_call<int(const std::filesystem::path& path, bool is_private)> open_new;
  // Creates a file that every user may lock, or opens an existing one without changing it; -ELOOP
  // for a link, -EMLINK for a file with several names, -EWOULDBLOCK if it was removed meanwhile.
  system_call<int(const std::filesystem::path& path)> open_lock;

  // Return the number of bytes moved, at most `count`; 0 from a read at the end of the file.
  system_call<std::int64_t(int file, std::byte* to, std::size_t count)> read_some;
  system_call<std::int64_t(int file, const std::byte* from, std::size_t count)> write_some;
  // Moves at most `count` bytes from one file to the other inside the system, each from its
  // position on. Returns their number, 0 at the end. Fails where the system cannot do it; then read
  // and write.
  system_call<std::int64_t(int from, int to, std::size_t count)> copy_some;
  // `offset` is in bytes from the start of the file. Returns the new position.
  system_call<std::int64_t(int file, std::int64_t offset)> seek_to;
  system_call<int(int file, std::int64_t size)> set_size;

  system_call<int(int file, file_info& info)> info_of;
  // Links are not followed.
  system_call<int(const std::filesystem::path& path, file_info& info)> info_at;
  // Copies permissions, owner and group from another file, as far as the system allows it.
  system_call<int(int file, const std::filesystem::path& from)> copy_permissions;
  // Takes an exclusive lock without waiting; -EWOULDBLOCK if another process has it. Closing the
  // file releases it, as the end of the process does.
  system_call<int(int file)> lock;

  system_call<int(int file)> flush_to_disk;
  system_call<int(int file)> close_file;

  // Removes read-only files too, but no folders.
  system_call<int(const std::filesystem::path& path)> remove_file;
  // Renames `file` to `target` atomically. `target` is replaced if it exists, even if read-only.
  system_call<int(const std::filesystem::path& file, const std::filesystem::path& target)> replace;
  // Makes renames, creations and removals in the folder survive a power loss.
  system_call<int(const std::filesystem::path& folder)> flush_folder;
  // Sets `found` to the entries of the folder, unsorted, without "." and "..".
  system_call<int(const std::filesystem::path& folder, std::vector<listed_entry>& found)> list;
};

extern system_call_table system_calls;

// The path as std::filesystem needs it: Windows refuses long ones without a prefix. The table's
// calls add it themselves.
std::filesystem::path for_system(const std::filesystem::path& path);

// The errno number of an error of the standard library.
int errno_number(const std::error_code& reason);

// Call once at start. A write past the file size limit (ulimit -f) then fails instead of ending the
// process.
void ignore_size_limit_signal();

}  // namespace files
