#include "data/icon_stream.h"

#include <span>

namespace ostrane {

namespace {

// Appends one block to the buffer. Returns false if the file ended in it.
bool read_block(icon_stream& stream, files::binary_file& file, std::size_t size) {
  const auto to = std::span(stream.read_buffer)
                      .subspan(static_cast<std::size_t>(stream.read_buffer_fill), size);
  const std::size_t got = file.read(to);
  stream.read_buffer_fill += static_cast<std::int32_t>(got);
  stream.entry_bytes_left -= static_cast<std::int32_t>(size);
  if (got == size) return true;
  stream.entry_bytes_left = 0;
  return false;
}

}  // namespace

void refill_read_buffer(icon_stream& stream, files::binary_file& file) {
  stream.read_buffer_fill = 0;
  stream.read_buffer_pos = 0;
  if (stream.entry_bytes_left >= read_buffer_size) {
    read_block(stream, file, read_buffer_size);
    return;
  }
  for (const std::int32_t block : {1024, 128, 8, 1}) {
    while (stream.entry_bytes_left >= block) {
      if (!read_block(stream, file, static_cast<std::size_t>(block))) return;
    }
  }
}

}  // namespace ostrane
