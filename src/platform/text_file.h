#pragma once

#include <string>
#include <string_view>

#include "platform/binary_file.h"
#include "platform/replaced_file.h"

namespace platform {

// Reads lines. A line ends at CR LF, at LF alone or at CR alone; a last line without an end counts
// as a line, and behind a line's end at the end of the file there is no further one.
class text_reader {
 public:
  // Throws file_error, as reading does.
  explicit text_reader(const std::string& path);

  bool at_end();
  // The next line without its end. Not to be called at the end.
  std::string read_line();

 private:
  bool fill();

  binary_file file_;
  std::string buffer_;
  std::size_t position_ = 0;
};

// Writes lines, each ended by CR LF, into a new file, which takes the place of the old one when it
// is closed. Until then, and if anything fails, the old file stays as it was.
class text_writer {
 public:
  // Throws file_error, as all the others do; at once if the old file may not be written to.
  explicit text_writer(const std::string& path);

  // `line` comes without its end.
  void write_line(std::string_view line);
  void close();

 private:
  replaced_file new_file_;
};

}  // namespace platform
