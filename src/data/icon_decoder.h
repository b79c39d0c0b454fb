#pragma once

#include <algorithm>
#include <limits>

#include "data/icon_stream.h"
#include "data/shp_format.h"

// The run-length stream of an icon paints its data box row by row. The control byte b selects the
// operation:
//
//   b                 operands           effect
//   0                 none               end of row: down by 1, back to the first column of the box
//   1                 a count            skip: moves right by the count, leaves pixels unset
//   even, 2 to 254    a palette index    run: b / 2 pixels of that colour
//   odd, 3 to 255     (b - 1) / 2 bytes  literals: one palette index per pixel
//
// The stream ends after the last row of the box, without an end marker.
namespace ostrane {

// Paints one icon on a canvas. The canvas clips to its own area and has
//   void run(column, row, count, index): paints `count` pixels with one palette index
//   void pixels(column, row, count, indices): paints one index (std::byte) per pixel
template <typename Canvas>
class icon_decoder {
 public:
  icon_decoder(icon_stream& stream, files::binary_file& file, const icon_head& head, Canvas& canvas)
      : stream_(stream), file_(file), head_(head), canvas_(canvas) {}

  // Stops early if the stream ends. Throws file_error.
  void decode() {
    stream_.cur_row = head_.row_start;
    stream_.cur_col = head_.col_start;
    stream_.stream_ended = false;
    while (stream_.cur_row <= head_.row_end) {
      take_stream_byte(stream_, file_);
      if (stream_.stream_ended) return;
      decode_stream_op();
    }
  }

 private:
  // Right of every picture. One more move from here does not overflow.
  static constexpr std::int32_t column_limit = std::numeric_limits<std::int32_t>::max() - 1024;

  void decode_stream_op() {
    if (stream_.stream_byte == 0) {
      stream_.cur_col = head_.col_start;
      ++stream_.cur_row;
    } else if (stream_.stream_byte == 1) {
      take_stream_byte(stream_, file_);
      move_right(stream_.stream_byte);
    } else if (stream_.stream_byte % 2 == 0) {
      paint_run();
    } else {
      paint_literals();
    }
  }

  void move_right(std::int32_t columns) {
    if (stream_.cur_col < column_limit) stream_.cur_col += columns;
  }

  void paint_run() {
    stream_.run_length = static_cast<std::int16_t>(stream_.stream_byte / 2);
    take_stream_byte(stream_, file_);
    if (stream_.stream_ended) return;
    canvas_.run(stream_.cur_col, stream_.cur_row, stream_.run_length, stream_.stream_byte);
    move_right(stream_.run_length);
  }

  void paint_literals() {
    stream_.run_length = static_cast<std::int16_t>((stream_.stream_byte - 1) / 2);
    for (std::int32_t left = stream_.run_length; left > 0;) {
      if (buffered_bytes(stream_) == 0) refill_read_buffer(stream_, file_);
      const std::int32_t count = std::min(left, buffered_bytes(stream_));
      if (count == 0) return take_stream_byte(stream_, file_);  // ends the stream
      paint_buffered_literals(count);
      left -= count;
    }
  }

  void paint_buffered_literals(std::int32_t count) {
    const std::byte* indices =
        stream_.read_buffer.data() + static_cast<std::size_t>(stream_.read_buffer_pos);
    canvas_.pixels(stream_.cur_col, stream_.cur_row, count, indices);
    stream_.stream_byte = std::to_integer<std::uint8_t>(indices[count - 1]);
    stream_.read_buffer_pos += count;
    move_right(count);
  }

  icon_stream& stream_;
  files::binary_file& file_;
  const icon_head& head_;
  Canvas& canvas_;
};

}  // namespace ostrane
