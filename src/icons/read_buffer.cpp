#include "icons/read_buffer.h"

#include <span>

#include "state/files.h"

namespace ostrane {

namespace {

// Reads one block behind what the buffer holds; false if the file ended in it.
bool read_block(std::size_t size) {
  const auto to = std::span(tool_state.read_buffer)
                      .subspan(static_cast<std::size_t>(tool_state.read_buffer_fill), size);
  const std::size_t got = file_1.read(to);
  tool_state.read_buffer_fill += static_cast<std::int32_t>(got);
  tool_state.entry_bytes_left -= static_cast<std::int32_t>(size);
  if (got == size) return true;
  tool_state.entry_bytes_left = 0;
  return false;
}

}  // namespace

void refill_read_buffer() {
  tool_state.read_buffer_fill = 0;
  tool_state.read_buffer_pos = 0;
  if (tool_state.entry_bytes_left >= read_buffer_size) {
    read_block(read_buffer_size);
    return;
  }
  for (const std::int32_t block : {1024, 128, 8, 1}) {
    while (tool_state.entry_bytes_left >= block) {
      if (!read_block(static_cast<std::size_t>(block))) return;
    }
  }
}

}  // namespace ostrane
