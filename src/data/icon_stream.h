#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "files/binary_file.h"

namespace ostrane {

constexpr std::int32_t read_buffer_size = 32768;

// The read and draw state of an icon's run-length stream. The large buffer has no initialiser.
struct icon_stream {
  std::array<std::byte, read_buffer_size> read_buffer;
  std::int32_t read_buffer_fill = 0;  // valid bytes in it
  std::int32_t read_buffer_pos = 0;   // index of the next byte
  // Bytes of the open entry not yet read from the file, or of its stream (see stream_size).
  std::int32_t entry_bytes_left = 0;
  std::uint8_t stream_byte = 0;  // the current one
  bool stream_ended = false;     // take_stream_byte found no byte
  std::int32_t cur_row = 0;      // of the pixel being drawn
  std::int32_t cur_col = 0;
  std::int16_t run_length = 0;  // of the current operation
};

// Reads min(read_buffer_size, entry_bytes_left) bytes from the open archive. At the end of the file
// sets entry_bytes_left to 0. Throws file_error.
void refill_read_buffer(icon_stream& stream, files::binary_file& file);

// Empties the buffer for a stream of `size` bytes at the file's current position.
inline void begin_stream(icon_stream& stream, std::int32_t size) {
  stream.entry_bytes_left = size;
  stream.read_buffer_fill = 0;
  stream.read_buffer_pos = 0;
}

// The number of unread bytes in the buffer.
inline std::int32_t buffered_bytes(const icon_stream& stream) {
  return stream.read_buffer_fill - stream.read_buffer_pos;
}

// Reads the next byte into `stream_byte`. At the end sets `stream_ended` to true and `stream_byte`
// to 0.
inline void take_stream_byte(icon_stream& stream, files::binary_file& file) {
  if (buffered_bytes(stream) == 0) refill_read_buffer(stream, file);
  if (buffered_bytes(stream) == 0) {
    stream.stream_ended = true;
    stream.stream_byte = 0;
    return;
  }
  const auto next = static_cast<std::size_t>(stream.read_buffer_pos++);
  stream.stream_byte = std::to_integer<std::uint8_t>(stream.read_buffer[next]);
}

}  // namespace ostrane
