#pragma once

#include <span>
#include <string>

#include "files/binary_file.h"

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

// Replaces a file durably by these lines, which end in CR LF. If the path is a link, its target is
// replaced. `source` is the file that the text comes from; it is never written to. If the system
// refuses a new file in the folder or its rename, the old file is overwritten in place; a failure
// then leaves a part of the text. Throws file_error.
void write_lines(const file_path& path, std::span<const std::string> lines,
                 const file_identity& source = {});

}  // namespace files
