#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "files/binary_file.h"
#include "files/replaced_file.h"

namespace files {

// Reads lines, which end in CR LF, LF or CR. The last line needs no line end; a trailing line end
// does not add an empty line. All operations throw file_error.
class text_reader {
 public:
  explicit text_reader(const file_path& path);

  bool at_end();
  // Returns the next line without its line end. Requires that at_end() is false.
  std::string read_line();

 private:
  bool fill();

  binary_file file_;
  std::string buffer_;
  std::size_t position_ = 0;
};

// Writes lines, each with CR LF at its end, to a new file. close() replaces the old file by it.
// Until then, and after any failure, the old file is unchanged. If the path is a link, its target
// is replaced. If the folder does not allow that, the old file is overwritten instead; a failure
// then leaves a part of the lines. All operations throw file_error.
class text_writer {
 public:
  // Throws if the old file is read-only, or if it is `source`, the file that the lines come from.
  explicit text_writer(const file_path& path, const file_identity& source = {});

  // `line` has no line end.
  void write_line(std::string_view line);
  void close();

 private:
  void open_old_file(const file_identity& source);
  void overwrite_old_file();
  bool succeeds_unless_denied(const std::function<void()>& step);
  binary_file& file() { return new_file_ ? new_file_->file() : old_file_; }

  file_path target_;
  bool replaces_ = false;  // an old file
  file_identity old_identity_;
  binary_file old_file_;
  std::optional<replaced_file> new_file_;
};

}  // namespace files
