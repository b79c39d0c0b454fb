#pragma once

#include "state/tool_state.h"

namespace ostrane {

// Reads on in the open archive (file 1) into `read_buffer`: 32768 bytes while the budget of
// `entry_bytes_left` allows it, else all that is left of it. Where the file ends the budget ends.
void refill_read_buffer();

// Bytes of the stream that are in the buffer and not taken yet; it is refilled if there are none.
inline std::int32_t bytes_at_hand() {
  if (tool_state.read_buffer_pos >= tool_state.read_buffer_fill) refill_read_buffer();
  return tool_state.read_buffer_fill - tool_state.read_buffer_pos;
}

// The next byte of the stream goes to `stream_byte`. With nothing left to read `stream_ended`
// becomes true and `stream_byte` 0.
inline void take_stream_byte() {
  if (bytes_at_hand() == 0) {
    tool_state.stream_ended = flag_true;
    tool_state.stream_byte = 0;
    return;
  }
  const auto next = static_cast<std::size_t>(tool_state.read_buffer_pos++);
  tool_state.stream_byte = std::to_integer<std::uint8_t>(tool_state.read_buffer[next]);
}

}  // namespace ostrane
