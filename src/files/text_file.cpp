#include "files/text_file.h"

#include <algorithm>

#include "files/file_error.h"
#include "files/written_path.h"

namespace files {

namespace {

constexpr std::size_t block_size = 65536;

bool exists(const file_path& path) {
  std::error_code failed;
  return std::filesystem::exists(std::filesystem::symlink_status(path.system, failed));
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

text_writer::text_writer(const file_path& path, const file_identity& source)
    : target_{written_path(path.system), path.shown} {
  replaces_ = exists(target_);
  if (replaces_) open_old_file(source);
  if (succeeds_unless_denied([&] { new_file_.emplace(target_); })) old_file_.abandon();
}

// Fails if the old file is read-only. Replacing it would succeed.
void text_writer::open_old_file(const file_identity& source) {
  old_file_.open_to_write(target_);
  old_identity_ = old_file_.info().stamp.identity;
  if (old_identity_ == source) {
    throw file_error(file_error_number::permission_denied,
                     target_.shown + " cannot be written: it is the open archive.");
  }
}

// Runs a step of replacing the old file. Returns false if the system denies it and there is an old
// file to overwrite instead.
bool text_writer::succeeds_unless_denied(const std::function<void()>& step) {
  try {
    step();
    return true;
  } catch (const file_error& error) {
    if (!replaces_ || error.number != file_error_number::permission_denied) throw;
    return false;
  }
}

// Opens the old file again: it was closed, as Windows does not replace an open file.
void text_writer::overwrite_old_file() {
  old_file_.open_to_write(target_);
  if (old_file_.info().stamp.identity != old_identity_) {
    throw file_error(file_error_number::device_error,
                     target_.shown + " cannot be written: another program has replaced it.");
  }
  new_file_->copy_to(old_file_);
}

void text_writer::write_line(std::string_view line) {
  file().write(std::as_bytes(std::span(line)));
  constexpr std::string_view end = "\r\n";
  file().write(std::as_bytes(std::span(end)));
}

void text_writer::close() {
  if (new_file_ && succeeds_unless_denied([&] { new_file_->commit(); })) {
    new_file_->flush_folder();
  } else {
    if (new_file_) overwrite_old_file();
    old_file_.truncate();
    old_file_.flush(true);
    old_file_.close();
  }
  new_file_.reset();
}

}  // namespace files
