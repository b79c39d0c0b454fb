#include "platform/text_file.h"

#include <algorithm>

#include "platform/paths.h"

namespace platform {

namespace {

constexpr std::size_t block = 65536;

// A file that is there must be a normal one that may be written to, though it is only replaced.
const std::string& writable(const std::string& path) {
  std::error_code unknown;
  if (!std::filesystem::exists(system_path(path), unknown)) return path;
  binary_file old;
  old.open_to_write(path);
  old.close();
  return path;
}

}  // namespace

text_reader::text_reader(const std::string& path) { file_.open_to_read(path); }

bool text_reader::fill() {
  buffer_.resize(block);
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

text_writer::text_writer(const std::string& path) : new_file_(writable(path)) {}

void text_writer::write_line(std::string_view line) {
  new_file_.file().write(std::as_bytes(std::span(line)));
  constexpr std::string_view end = "\r\n";
  new_file_.file().write(std::as_bytes(std::span(end)));
}

void text_writer::close() { new_file_.put_in_place(); }

}  // namespace platform
