#pragma once

#include <functional>

#include "files/binary_file.h"
#include "files/file_calls.h"
#include "files/writing_lock.h"

namespace files {

// Replaces a file atomically: the new content is written to a hidden file beside it, which is then
// renamed. Until then, and after any failure, the old file is unchanged. Copies of the tool that
// write the same file wait for each other. A leftover from a crash is removed on the next run.
//
// Before it renames or removes a file it checks that the path still leads to the file that it
// wrote, as other programs can move files meanwhile. All operations throw file_error.
class replaced_file {
 public:
  // `target` need not exist. If only a name in another case exists, that file is replaced. The new
  // file gets permissions and owner of the old one, if the system allows it. Throws if the folder
  // cannot be listed, as the old file could then have a name in another case.
  explicit replaced_file(file_path target);
  replaced_file(const replaced_file&) = delete;
  replaced_file& operator=(const replaced_file&) = delete;
  // Removes the new file unless it was committed.
  ~replaced_file();

  binary_file& file() { return file_; }

  // Flushes the new file to the disk and renames it to the target. `before_rename` runs between the
  // two; if it throws, the old file stays.
  void commit(const std::function<void()>& before_rename = [] {});
  // For a target that cannot be replaced: writes the new content to `to` instead.
  void copy_to(binary_file& to);

  // Renames the file to `target`, which differs from its current name in case only, and deletes
  // files whose names differ from it in case only. Failures are ignored. Call after commit.
  void respell(const std::filesystem::path& target);

  // Flushes the folder, so that the new file survives a power loss. Failures are ignored.
  void flush_folder();

 private:
  void remove_leftovers() const;
  void require_own_file() const;
  // Whether a path names the new file.
  file_calls::path_match match(const std::filesystem::path& path) const;

  file_path target_;
  std::filesystem::path folder_;
  writing_lock lock_;
  std::filesystem::path temporary_;
  binary_file file_;
  file_identity identity_;  // of the new file; Wine cannot query it after the rename
};

}  // namespace files
