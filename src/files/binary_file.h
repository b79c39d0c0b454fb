#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "files/file_error.h"
#include "files/file_path.h"
#include "files/system_calls.h"

namespace files {

// A binary file with a current position and a buffer of 256 KiB. Reading past the end is not an
// error; it returns fewer bytes. Unless stated otherwise, all operations throw file_error, whose
// text names the path, if a system call fails.
class binary_file {
 public:
  binary_file() = default;
  binary_file(const binary_file&) = delete;
  binary_file& operator=(const binary_file&) = delete;
  ~binary_file() { abandon(); }

  void open_to_read(const file_path& path);
  // Closes an open file and allocates the buffer for the next one, so that a lack of memory leaves
  // no empty file. `shown_path` is the path for messages.
  void prepare(const std::u8string& shown_path);
  // Takes ownership of a file that was created after prepare(). Throws only if `file` is a negative
  // errno number.
  void adopt(int file);

  // `offset` is in bytes from the start of the file.
  void seek(std::int64_t offset);
  // Returns the number of bytes read, which is less than `to.size()` only at the end of the file.
  std::size_t read(std::span<std::byte> to);
  // Returns the next bytes without copying them: at most `max`, none at the end of the file. Valid
  // until the next call.
  std::span<const std::byte> next(std::size_t max);
  void write(std::span<const std::byte> from);
  // Writes the next bytes of `source`, at most `max`, and returns how many; 0 at its end.
  std::size_t write_from(binary_file& source, std::size_t max);
  // Truncates the file at the current position. For files open for writing.
  void truncate();
  file_info info();
  std::int64_t size() { return info().stamp.size; }  // bytes

  // Writes the buffer to the system. For files open for writing.
  void flush();
  // Flushes, and waits until the disk has the file.
  void flush_to_disk();
  // Flushes and closes. Throws if the file is open for writing and either fails.
  void close();
  // Closes an open file, discards the buffer and ignores failures.
  void abandon();

  // The file descriptor or handle for system_calls; negative if no file is open.
  int handle() const { return file_; }

 private:
  [[noreturn]] void fail(file_action action, std::int64_t status) const;
  void forget_position();
  // Continues that many bytes after the buffer, which the system has already moved.
  void skip_buffer(std::int64_t beyond);
  std::size_t read_from_system(std::span<std::byte> to);
  void fill_buffer();
  void write_to_system(std::span<const std::byte> from);
  std::size_t copy_in_system(binary_file& source, std::size_t max);

  int file_ = -1;
  bool writes_ = false;
  bool copies_in_system_ = true;  // until it fails once
  std::u8string path_;
  std::vector<std::byte> buffer_;
  std::size_t position_ = 0;       // index of the next byte in the buffer
  std::size_t fill_ = 0;           // bytes in the buffer while reading
  std::int64_t buffer_start_ = 0;  // file offset of the buffer's first byte
};

// Writes all bytes to an open file. Throws file_error, which names `shown`.
void write_all(int file, std::span<const std::byte> bytes, const std::u8string& shown);

// Returns all bytes of a file, read with `file`, which any number of files can share. Throws
// file_error.
std::string read_bytes(binary_file& file, const file_path& path);

}  // namespace files
