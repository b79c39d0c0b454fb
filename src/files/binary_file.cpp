#include "files/binary_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace files {

namespace {

constexpr std::size_t buffer_size = 262144;
// For a block of this size a system call costs less than a copy through the buffer.
constexpr std::size_t min_direct_block = 4096;

}  // namespace

void binary_file::abandon() {
  if (file_ >= 0) system_calls.close_file(file_);
  file_ = -1;
}

void binary_file::open_to_read(const file_path& path) {
  prepare(path.shown);
  writes_ = false;
  file_ = system_calls.open_to_read(path.system);
  if (file_ < 0) fail(file_action::open, file_);
}

void binary_file::prepare(const std::u8string& shown_path) {
  abandon();
  path_ = shown_path;
  buffer_.resize(buffer_size);
  position_ = 0;
  fill_ = 0;
  buffer_start_ = 0;
}

void binary_file::adopt(int file) {
  writes_ = true;
  file_ = file;
  if (file_ < 0) fail(file_action::create, file_);
}

void binary_file::fail(file_action action, std::int64_t status) const {
  files::fail(path_, action, status);
}

// After a failed call the position of the system is unknown. No offset is then in the buffer.
void binary_file::forget_position() {
  position_ = 0;
  fill_ = 0;
  buffer_start_ = INT64_MAX;
}

void binary_file::seek(std::int64_t offset) {
  if (writes_) flush();
  const std::int64_t ahead = offset - buffer_start_;
  if (!writes_ && ahead >= 0 && ahead <= static_cast<std::int64_t>(fill_)) {
    position_ = static_cast<std::size_t>(ahead);
    return;
  }
  forget_position();
  const std::int64_t at = system_calls.seek_to(file_, offset);
  if (at < 0) fail(writes_ ? file_action::write : file_action::read, at);
  buffer_start_ = offset;
}

void binary_file::skip_buffer(std::int64_t beyond) {
  buffer_start_ += static_cast<std::int64_t>(fill_) + beyond;
  position_ = 0;
  fill_ = 0;
}

std::size_t binary_file::read_from_system(std::span<std::byte> to) {
  const std::int64_t moved = system_calls.read_some(file_, to.data(), to.size());
  if (moved < 0) {
    forget_position();
    fail(file_action::read, moved);
  }
  return static_cast<std::size_t>(moved);
}

void binary_file::fill_buffer() {
  skip_buffer(0);
  fill_ = read_from_system(buffer_);
}

std::span<const std::byte> binary_file::next(std::size_t max) {
  if (position_ == fill_) fill_buffer();
  const auto bytes = std::span(buffer_).subspan(position_, std::min(max, fill_ - position_));
  position_ += bytes.size();
  return bytes;
}

std::size_t binary_file::read(std::span<std::byte> to) {
  std::size_t got = 0;
  while (got < to.size()) {
    if (position_ == fill_) {
      // A large block bypasses the buffer.
      if (to.size() - got >= buffer_size) {
        const std::size_t moved = read_from_system(to.subspan(got));
        if (moved == 0) break;
        skip_buffer(static_cast<std::int64_t>(moved));
        got += moved;
        continue;
      }
      fill_buffer();
      if (fill_ == 0) break;
    }
    const std::size_t part = std::min(fill_ - position_, to.size() - got);
    std::memcpy(to.data() + got, buffer_.data() + position_, part);
    position_ += part;
    got += part;
  }
  return got;
}

void binary_file::write(std::span<const std::byte> from) {
  if (position_ == 0 && from.size() >= min_direct_block) {
    write_to_system(from);
    return;
  }
  while (!from.empty()) {
    if (position_ == buffer_size) flush();
    const std::size_t part = std::min(buffer_size - position_, from.size());
    std::memcpy(buffer_.data() + position_, from.data(), part);
    position_ += part;
    from = from.subspan(part);
  }
}

// Returns 0 if the system does not copy, or at the end: a read then tells which, and why.
std::size_t binary_file::copy_in_system(binary_file& source, std::size_t max) {
  if (!copies_in_system_) return 0;
  flush();
  const std::int64_t moved =
      system_calls.copy_some(source.file_, file_, std::min(max, buffer_size));
  copies_in_system_ = moved >= 0;
  if (moved <= 0) return 0;
  buffer_start_ += moved;
  source.skip_buffer(moved);
  return static_cast<std::size_t>(moved);
}

std::size_t binary_file::write_from(binary_file& source, std::size_t max) {
  if (source.position_ < source.fill_ || max < min_direct_block) {
    const std::span<const std::byte> part = source.next(max);
    write(part);
    return part.size();
  }
  if (const std::size_t copied = copy_in_system(source, max); copied > 0) return copied;
  // Reads straight into the buffer of this file.
  if (position_ == buffer_size) flush();
  const std::size_t space = std::min(buffer_size - position_, max);
  const std::size_t moved = source.read_from_system(std::span(buffer_).subspan(position_, space));
  source.skip_buffer(static_cast<std::int64_t>(moved));
  position_ += moved;
  return moved;
}

file_info binary_file::info() {
  file_info found;
  const int status = system_calls.info_of(file_, found);
  if (status < 0) fail(writes_ ? file_action::write : file_action::read, status);
  return found;
}

void binary_file::truncate() {
  flush();
  const int status = system_calls.set_size(file_, buffer_start_);
  if (status < 0) fail(file_action::write, status);
}

// After a failure the file can only be closed, or prepared for another one.
void binary_file::write_to_system(std::span<const std::byte> from) {
  write_all(file_, from, path_);
  buffer_start_ += static_cast<std::int64_t>(from.size());
}

void binary_file::flush() {
  const std::size_t count = position_;
  position_ = 0;  // so that close() does not retry a failed write
  write_to_system(std::span(buffer_).first(count));
}

void binary_file::flush_to_disk() {
  flush();
  const int flushed = system_calls.flush_to_disk(file_);
  if (flushed < 0) fail(file_action::write, flushed);
}

void binary_file::close() {
  if (file_ < 0) return;
  if (writes_) flush();
  const int file = file_;
  file_ = -1;
  const int closed = system_calls.close_file(file);
  if (closed < 0 && writes_) fail(file_action::write, closed);
}

void write_all(int file, std::span<const std::byte> bytes, const std::u8string& shown) {
  while (!bytes.empty()) {
    const std::int64_t moved = system_calls.write_some(file, bytes.data(), bytes.size());
    if (moved <= 0) fail(shown, file_action::write, moved < 0 ? moved : -EIO);
    bytes = bytes.subspan(static_cast<std::size_t>(moved));
  }
}

std::string read_bytes(binary_file& file, const file_path& path) {
  file.open_to_read(path);
  std::string bytes(static_cast<std::size_t>(file.size()), '\0');
  bytes.resize(file.read(std::as_writable_bytes(std::span(bytes))));
  file.close();
  return bytes;
}

}  // namespace files
