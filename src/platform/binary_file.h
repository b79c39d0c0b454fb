#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace platform {

// A file of bytes with a current position. It is buffered, so that blocks of one byte cost no call
// to the system each. All operations throw file_error, with the path in its text, if the system
// fails; reading past the end is no failure and moves fewer bytes.
class binary_file {
 public:
  binary_file() = default;
  binary_file(const binary_file&) = delete;
  binary_file& operator=(const binary_file&) = delete;
  // Closes an open file without looking at failures.
  ~binary_file() { abandon(); }

  void open_to_read(const std::string& path);
  // Makes a missing file and gives true; one that is there is written over from its first byte and
  // not emptied.
  bool open_to_write(const std::string& path);

  // Takes a file that was opened for writing through file_calls; `path` is for messages.
  void take_written(int file, const std::string& path);

  void seek(std::int64_t offset);
  // Bytes read: fewer than asked for only at the end of the file.
  std::size_t read(std::span<std::byte> to);
  // The next bytes, at most so many and none at the end of the file. They stay until the next call.
  std::span<const std::byte> next(std::size_t most);
  void write(std::span<const std::byte> from);
  std::int64_t size();

  // Writes what is still buffered, and to the disk itself too if `to_disk`.
  void flush(bool to_disk = false);
  // Closing a file that was written can fail, so it is looked at.
  void close();
  // Closes without writing what is still buffered and without looking at failures.
  void abandon();

 private:
  void take(int file, const std::string& path, bool writes);
  [[noreturn]] void fail(std::int64_t outcome, const char* what);
  std::size_t read_from_system(std::span<std::byte> to);
  void fill_buffer();

  int file_ = -1;
  bool writes_ = false;
  std::string path_;
  std::vector<std::byte> buffer_;
  std::size_t position_ = 0;       // of the next byte in the buffer
  std::size_t fill_ = 0;           // bytes in the buffer while reading
  std::int64_t buffer_start_ = 0;  // place in the file of the buffer's first byte, while reading
};

}  // namespace platform
