#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <vector>

// The calls to the system through which all files are read and written.
namespace files {

struct listed_entry {
  std::filesystem::path::string_type name;
  bool is_hidden = false;  // the system does not list it by itself
  bool is_folder = false;  // it or what it leads to, if it is a link
  bool is_file = false;    // a normal one; so for a link too
};

// Two names with one identity lead to one file.
struct file_identity {
  std::uint64_t device = 0;
  std::uint64_t number = 0;

  friend bool operator==(const file_identity&, const file_identity&) = default;
};

// As long as the stamp is the same, nobody has replaced or written to the file.
struct file_stamp {
  file_identity identity;
  std::int64_t size = 0;      // bytes
  std::int64_t modified = 0;  // nanoseconds

  friend bool operator==(const file_stamp&, const file_stamp&) = default;
};

struct file_facts {
  file_stamp stamp;
  bool is_file = false;  // a normal one, not a link to one
  std::uint32_t rights = 0;
  std::uint32_t owner = 0;
  std::uint32_t group = 0;
};

// One file per system fills the table; tests put calls that fail in front. Each call returns a
// negative errno number on failure.
struct system_call_table {
  // Only a normal file is opened; anything else (a folder, a device, a pipe) fails without waiting.
  int (*open_to_read)(const std::filesystem::path& path);
  // Makes a missing file and does not empty an existing one.
  int (*open_to_write)(const std::filesystem::path& path);
  // Makes a file that must not exist yet.
  int (*open_new)(const std::filesystem::path& path);

  // Bytes moved; 0 from a read at the end of the file.
  std::int64_t (*read_some)(int file, std::byte* to, std::size_t count);
  std::int64_t (*write_some)(int file, const std::byte* from, std::size_t count);
  // `offset` counts from the start of the file, in bytes.
  std::int64_t (*seek_to)(int file, std::int64_t offset);
  int (*set_size)(int file, std::int64_t size);

  int (*facts_of)(int file, file_facts& facts);
  // A link is not followed.
  int (*facts_at)(const std::filesystem::path& path, file_facts& facts);
  // Gives the file those rights and that owner, as far as the system lets it.
  int (*set_rights)(int file, const file_facts& like);
  // -EWOULDBLOCK if another process has locked the file. Closing it, or the end of the process,
  // unlocks it.
  int (*lock)(int file);

  int (*flush_to_disk)(int file);
  int (*close_file)(int file);

  // Read-only or not; no folder.
  int (*remove_file)(const std::filesystem::path& path);
  // Puts `file` in the place of `target`, or under a name that is free, in one step.
  int (*replace)(const std::filesystem::path& file, const std::filesystem::path& target);
  // What was renamed, made or deleted in the folder then survives a loss of power.
  int (*flush_folder)(const std::filesystem::path& folder);
  // Appends what the folder holds, in no order.
  int (*list)(const std::filesystem::path& folder, std::vector<listed_entry>& found);
};

extern system_call_table system_calls;

// A write past the system's limit on file sizes then fails instead of ending the process.
void ignore_size_limit_signal();

}  // namespace files
