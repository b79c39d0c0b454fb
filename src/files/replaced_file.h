#pragma once

#include "files/binary_file.h"
#include "files/writing_lock.h"

namespace files {

// New content for a file, written to a hidden file beside it, which takes the file's place in one
// step when it is whole. Until then, and after any failure, the old file is as it was. Copies of
// the tool that write the same file wait for each other. A hidden file that a crash has left is
// removed by the next one.
//
// Nothing is put in place or deleted under a name that does not lead to what was written here.
class replaced_file {
 public:
  // `target` is the file to replace or make. An old file whose name differs in case only is it too,
  // unless there is one of the exact name. The new file gets the rights and the owner of the old
  // one. Throws file_error, as the others do.
  explicit replaced_file(file_path target);
  replaced_file(const replaced_file&) = delete;
  replaced_file& operator=(const replaced_file&) = delete;
  // Removes what was not put in place.
  ~replaced_file();

  binary_file& file() { return file_; }

  // Flushes the new content to the disk and puts it in place.
  void put_in_place();

  // For a file that is in place: another spelling of its name, in the same folder. If that fails
  // the name stays. Other files of the same name in another case are deleted.
  void respell(const std::filesystem::path& target);

  // Flushes the folder, so that a loss of power does not bring the old file back.
  void flush_folder();

 private:
  void remove_leftovers() const;
  void take_rights();
  void require_own_file() const;
  // 1 if `path` leads to what is written here, 0 if not, or a negative errno number.
  int is_own(const std::filesystem::path& path) const;

  file_path target_;
  writing_lock lock_;
  std::filesystem::path temporary_;
  binary_file file_;
  file_identity identity_;  // of what is written here
};

}  // namespace files
