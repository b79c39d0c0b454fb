#include "platform/text_file.h"

#include "platform/case_blind.h"
#include "platform/file_calls.h"
#include "platform/paths.h"

namespace platform {

namespace {

constexpr std::size_t block = 65536;

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
    const std::size_t end = buffer_.find_first_of("\r\n", position_);
    if (end == std::string::npos) {
      line.append(buffer_, position_);
      position_ = buffer_.size();
      continue;
    }
    line.append(buffer_, position_, end - position_);
    position_ = end + 1;
    if (buffer_[end] == '\r' && !at_end() && buffer_[position_] == '\n') ++position_;
    break;
  }
  return line;
}

text_writer::text_writer(const std::string& path) {
  const std::filesystem::path place = system_path(path);
  file_.take_written(file_calls::open_to_write(place), path);
  file_.cut_to(0);
  remember_file(place);
}

void text_writer::write_line(std::string_view line) {
  file_.write(std::as_bytes(std::span(line)));
  constexpr std::string_view end = "\r\n";
  file_.write(std::as_bytes(std::span(end)));
}

void text_writer::close() { file_.close(); }

}  // namespace platform
