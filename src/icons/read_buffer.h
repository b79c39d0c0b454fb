#pragma once

namespace ostrane {

// Reads on in the open archive (file 1) into `read_buffer`: 32768 bytes while the budget of
// `entry_bytes_left` allows it, else all that is left of it. Where the file ends the budget ends.
void refill_read_buffer();

// The next byte of the stream goes to `stream_byte`. With nothing left to read `stream_ended`
// becomes true and `stream_byte` 0.
void take_stream_byte();

}  // namespace ostrane
