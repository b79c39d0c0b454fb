#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "files/binary_file.h"
#include "files/replaced_file.h"

namespace files {

// Reads lines. A line ends at CR LF, at LF alone or at CR alone. A last line without an end counts
// as a line; a line end at the end of the file adds no empty line.
class text_reader {
 public:
  // Throws file_error, as reading does.
  explicit text_reader(const file_path& path);

  bool at_end();
  // The next line without its end. Not to be called at the end.
  std::string read_line();

 private:
  bool fill();

  binary_file file_;
  std::string buffer_;
  std::size_t position_ = 0;
};

// Writes lines, each ended by CR LF, into a file that replaces the old one when it is closed. Until
// then, and after any failure, the old file is as it was. A link stays, and the file that it leads
// to is replaced. Where no file can be made beside the old one the lines are written into that; a
// failure then leaves a part of them.
class text_writer {
 public:
  // Throws file_error, as the others do; at once if the old file is read-only.
  // `spared` must not be written to, also if `path` leads to it.
  explicit text_writer(const file_path& path, const file_identity& spared = {});

  // `line` comes without its end.
  void write_line(std::string_view line);
  void close();

 private:
  binary_file& file() { return new_file_ ? new_file_->file() : old_file_; }

  binary_file old_file_;
  std::optional<replaced_file> new_file_;
};

}  // namespace files
