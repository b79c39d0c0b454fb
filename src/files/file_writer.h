#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "files/binary_file.h"
#include "files/writing_lock.h"

namespace files {

enum class write_mode : std::uint8_t {
  atomic,    // an existing file or link is replaced by the complete new file
  durable,   // the same, flushed to the disk; copies of the tool wait for each other
  in_place,  // an existing file is overwritten from its first byte and not truncated
};

struct write_rules {
  write_mode mode = write_mode::atomic;
  file_identity source = {};        // of the file that is read; it is never written to
  bool replaces = true;             // otherwise whatever exists is refused
  bool replaces_read_only = false;  // otherwise a read-only file is refused
  // The new file also replaces all files whose names differ from its own in case only.
  bool is_only_spelling = false;
};

// Writes a file completely or, except in place, not at all. A file that does not exist gets its own
// name at once unless the mode is durable. A new file that replaces another one is written to a
// hidden file beside it and then renamed; until then only its owner can open it. It gets
// permissions and owner of the old file, if the system allows it.
//
// Before a file is renamed or removed, its path must still lead to the file that was written, as
// other programs can move files meanwhile. All operations throw file_error.
class file_writer {
 public:
  // Opens `file` to write `target`. In place the system refuses a file that may not be written,
  // otherwise the rule of require_writable does. In the mode durable, removes the leftovers in its
  // folder.
  file_writer(binary_file& file, file_path target, const write_rules& rules = {});
  file_writer(const file_writer&) = delete;
  file_writer& operator=(const file_writer&) = delete;
  // Removes a new file unless it was kept.
  ~file_writer();

  // False if an existing file is overwritten in place.
  bool is_new() const { return is_new_; }
  // The file at the target before, zero if there was none, and the one that is written.
  const file_identity& old_file() const { return old_file_; }
  const file_identity& written_file() const { return new_file_.identity; }

  // Closes the file and gives it the name of the target. `last_check` is called directly before the
  // new file is kept. If it throws, the old file stays.
  void keep(const std::function<void()>& last_check = nullptr);

 private:
  struct owned_file {
    std::filesystem::path path;
    file_identity identity = {};  // zero if unknown
    bool is_owned = false;
    ~owned_file();
  };
  bool is_durable() const { return rules_.mode == write_mode::durable; }
  int create(std::filesystem::path path, bool is_private);
  void own(int created);
  void create_beside();
  void overwrite();
  void rename();
  void restore_spelling();
  void remove_other_spellings();

  binary_file& file_;
  file_path target_;
  std::filesystem::path spelling_;  // the name that the file must have
  std::filesystem::path folder_;
  write_rules rules_;
  std::optional<writing_lock> lock_;
  owned_file new_file_;
  file_identity old_file_;
  bool is_new_ = true;
};

// Throws file_error if the file at `target` exists and must not be written: if nothing is to be
// replaced, if it is neither a regular file nor a link, if it is read-only, or if it is the source.
void require_writable(const file_path& target, const write_rules& rules = {});

// Writes a file of these bytes with `file`, which any number of files can share. Throws file_error.
void write_bytes(binary_file& file, const file_path& target, std::string_view bytes,
                 const write_rules& rules = {});

}  // namespace files
