#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "files/file_path.h"
#include "files/system_calls.h"

namespace files {

// A file of bytes with a current position. It is buffered, so that blocks of one byte cost no call
// to the system each. All operations throw file_error, with the path in its text, if the system
// fails. Reading past the end is not an error; it returns fewer bytes.
class binary_file {
 public:
  binary_file() = default;
  binary_file(const binary_file&) = delete;
  binary_file& operator=(const binary_file&) = delete;
  // Closes an open file and ignores failures.
  ~binary_file() { abandon(); }

  void open_to_read(const file_path& path);
  // Makes a missing file and returns true. An existing file is written over from its first byte and
  // not emptied.
  bool open_to_write(const file_path& path);

  // Takes a file that was opened for writing through file_calls; `shown_path` is for messages.
  void take_written(int file, const std::string& shown_path);

  void seek(std::int64_t offset);
  // Bytes read: fewer than asked for only at the end of the file.
  std::size_t read(std::span<std::byte> to);
  // The next bytes, at most `max` and none at the end of the file. Valid until the next call.
  std::span<const std::byte> next(std::size_t max);
  void write(std::span<const std::byte> from);
  // Cuts a written file after its last byte written.
  void cut();
  file_facts facts();
  std::int64_t size() { return facts().stamp.size; }

  // Writes what is still buffered, and to the disk itself too if `to_disk`.
  void flush(bool to_disk = false);
  // Throws if what was written cannot be stored.
  void close();
  // Closes without writing what is still buffered, and ignores failures.
  void abandon();

  // The number of the open file, for file_calls.
  int handle() const { return file_; }

 private:
  void prepare(const std::string& shown_path);
  void take(int file, bool writes);
  [[noreturn]] void fail(std::int64_t outcome, const char* what);
  std::size_t read_from_system(std::span<std::byte> to);
  void fill_buffer();

  int file_ = -1;
  bool writes_ = false;
  std::string path_;
  std::vector<std::byte> buffer_;
  std::size_t position_ = 0;       // of the next byte in the buffer
  std::size_t fill_ = 0;           // bytes in the buffer while reading
  std::int64_t buffer_start_ = 0;  // file offset of the buffer's first byte
};

}  // namespace files
