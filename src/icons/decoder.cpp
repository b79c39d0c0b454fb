#include "icons/decoder.h"

#include <algorithm>
#include <limits>

#include "forms/form1.h"
#include "icons/read_buffer.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

// Far behind every slot, and far enough from the end of the numbers for one more step.
constexpr std::int32_t column_limit = std::numeric_limits<std::int32_t>::max() - 1024;

void move_right(std::int32_t columns) {
  if (tool_state.cur_col < column_limit) tool_state.cur_col += columns;
}

void end_row() {
  tool_state.cur_col = tool_state.icon_header.col_start;
  ++tool_state.cur_row;
}

void skip() {
  take_stream_byte();
  move_right(tool_state.stream_byte);
}

void paint_run(forms_layer::picture_box& slot) {
  tool_state.run_length = static_cast<std::int16_t>(tool_state.stream_byte / 2);
  take_stream_byte();
  if (tool_state.stream_ended == flag_true) return;
  slot.Line(tool_state.cur_col, tool_state.cur_row, tool_state.cur_col + tool_state.run_length,
            tool_state.cur_row, tool_state.colour_table[tool_state.stream_byte]);
  move_right(tool_state.run_length);
}

// Colours for the pixels whose palette indices come next in the buffer.
void paint_buffered_literals(forms_layer::picture_box& slot, std::int32_t count) {
  const std::byte* index =
      tool_state.read_buffer.data() + static_cast<std::size_t>(tool_state.read_buffer_pos);
  slot.PSet(tool_state.cur_col, tool_state.cur_row, count, [index](std::size_t number) {
    return tool_state.colour_table[std::to_integer<std::uint8_t>(index[number])];
  });
  tool_state.stream_byte = std::to_integer<std::uint8_t>(index[count - 1]);
  tool_state.read_buffer_pos += count;
  move_right(count);
}

void paint_literals(forms_layer::picture_box& slot) {
  tool_state.run_length = static_cast<std::int16_t>((tool_state.stream_byte - 1) / 2);
  for (std::int32_t left = tool_state.run_length; left > 0;) {
    const std::int32_t count = std::min(left, bytes_at_hand());
    if (count == 0) {
      take_stream_byte();
      return;
    }
    paint_buffered_literals(slot, count);
    left -= count;
  }
}

// Carries out `stream_byte`, taking its operands from the stream.
void decode_stream_op(forms_layer::picture_box& slot) {
  if (tool_state.stream_byte == 0) {
    end_row();
  } else if (tool_state.stream_byte == 1) {
    skip();
  } else if (tool_state.stream_byte % 2 == 0) {
    paint_run(slot);
  } else {
    paint_literals(slot);
  }
}

}  // namespace

void decode_icon() {
  forms_layer::picture_box& slot = Form1.s16_image(tool_state.current_slot);
  tool_state.cur_row = tool_state.icon_header.row_start;
  tool_state.cur_col = tool_state.icon_header.col_start;
  tool_state.stream_ended = flag_false;
  while (tool_state.cur_row <= tool_state.icon_header.row_end) {
    take_stream_byte();
    if (tool_state.stream_ended == flag_true) return;
    decode_stream_op(slot);
  }
}

}  // namespace ostrane
