#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

// The system calls through which all files are read and written.
namespace files {

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
  bool is_file = false;  // a regular file, not a link to one
};

// Filled in by system_calls_posix.cpp or system_calls_windows.cpp. Tests put failing calls into it.
// Each call returns a negative errno number on failure, and 0 or what its comment says on success.
struct system_call_table {
  // Return a file descriptor or handle. Folders, devices and pipes are refused and never block.
  int (*open_to_read)(const std::filesystem::path& path);
  // Opens an existing file without truncating it.
  int (*open_to_write)(const std::filesystem::path& path);
  // Creates a file; -EEXIST if the path exists. Only its owner can open a private
  // file until copy_permissions.
  int (*open_new)(const std::filesystem::path& path, bool is_private);
  // Opens or creates a file that every user may lock; -ELOOP for a link.
  int (*open_lock)(const std::filesystem::path& path);

  // Return the number of bytes moved, at most `count`; 0 from a read at the end of the file.
  std::int64_t (*read_some)(int file, std::byte* to, std::size_t count);
  std::int64_t (*write_some)(int file, const std::byte* from, std::size_t count);
  // `offset` is in bytes from the start of the file. Returns the new position.
  std::int64_t (*seek_to)(int file, std::int64_t offset);
  int (*set_size)(int file, std::int64_t size);

  int (*info_of)(int file, file_info& info);
  // Links are not followed.
  int (*info_at)(const std::filesystem::path& path, file_info& info);
  // Copies permissions, owner and group from another file, as far as the system allows it.
  int (*copy_permissions)(int file, const std::filesystem::path& from);
  // Takes an exclusive lock without waiting; -EWOULDBLOCK if another process has it. Closing the
  // file releases it, as the end of the process does.
  int (*lock)(int file);

  int (*flush_to_disk)(int file);
  int (*close_file)(int file);

  // Removes read-only files too, but no folders.
  int (*remove_file)(const std::filesystem::path& path);
  // Renames `file` to `target` atomically. `target` is replaced if it exists, even if read-only.
  int (*replace)(const std::filesystem::path& file, const std::filesystem::path& target);
  // Makes renames, creations and removals in the folder survive a power loss.
  int (*flush_folder)(const std::filesystem::path& folder);
  // Appends the entries of the folder to `found`, unsorted, without "." and "..".
  int (*list)(const std::filesystem::path& folder, std::vector<listed_entry>& found);
};

extern system_call_table system_calls;

// Call once at start. A write past the file size limit (ulimit -f) then fails instead of ending the
// process.
void ignore_size_limit_signal();

}  // namespace files
