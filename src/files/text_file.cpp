#include "files/text_file.h"

#include <algorithm>

#include "files/case_insensitive_lookup.h"
#include "files/file_error.h"
#include "files/file_writer.h"
#include "files/written_path.h"

namespace files {

namespace {

constexpr std::size_t block_size = 65536;

// As in a read-only or a sticky folder, and for a file that is a mount point.
bool refuses_new_file(const file_error& error) {
  return error.number == file_error_number::permission_denied &&
         (error.action == file_action::create || error.action == file_action::create_in ||
          error.action == file_action::replace);
}

void overwrite_in_place(binary_file& file, const file_path& target, std::string_view text,
                        const file_identity& source) {
  file_writer to(file, target, {.mode = write_mode::in_place, .source = source});
  file.write(std::as_bytes(std::span(text)));
  file.truncate();
  file.flush_to_disk();
  to.keep();
}

}  // namespace

text_reader::text_reader(const file_path& path) { file_.open_to_read(path); }

bool text_reader::fill() {
  buffer_.resize(block_size);
  position_ = 0;
  buffer_.resize(file_.read(std::as_writable_bytes(std::span(buffer_))));
  return !buffer_.empty();
}

bool text_reader::at_end() { return position_ == buffer_.size() && !fill(); }

std::string text_reader::read_line() {
  std::string line;
  while (!at_end()) {
    const std::string_view rest = std::string_view(buffer_).substr(position_);
    const auto ends_line = [](char c) { return c == '\r' || c == '\n'; };
    const auto at = std::find_if(rest.begin(), rest.end(), ends_line);
    line.append(rest.begin(), at);
    position_ += static_cast<std::size_t>(at - rest.begin());
    if (at == rest.end()) continue;
    const char end = buffer_[position_++];
    if (end == '\r' && !at_end() && buffer_[position_] == '\n') ++position_;
    break;
  }
  return line;
}

void write_lines(const file_path& path, std::span<const std::string> lines,
                 const file_identity& source) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append("\r\n");
  const file_path target = {written_path(path.system), path.shown};
  const write_rules rules = {.mode = write_mode::durable, .source = source};
  binary_file file;
  try {
    write_bytes(file, target, text, rules);
    return;
  } catch (const file_error& error) {
    if (!refuses_new_file(error) || !path_exists(target.system)) throw;
  }
  overwrite_in_place(file, target, text, source);
}

}  // namespace files
