#include "icons/decoder.h"

#include <limits>

#include "forms/form1.h"
#include "icons/read_buffer.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

// Far behind every slot, and far enough from the end of the numbers for one more step.
constexpr std::int32_t rightmost = std::numeric_limits<std::int32_t>::max() - 1024;

void move_right(std::int32_t columns) {
  if (tool_state.cur_col < rightmost) tool_state.cur_col += columns;
}

platform::picture_box& slot() { return Form1.s16_image(tool_state.current_slot); }

void end_row() {
  tool_state.cur_col = tool_state.icon_header.col_start;
  ++tool_state.cur_row;
}

void skip() {
  take_stream_byte();
  move_right(tool_state.stream_byte);
}

void paint_run() {
  tool_state.run_length = static_cast<std::int16_t>(tool_state.stream_byte / 2);
  take_stream_byte();
  if (tool_state.stream_ended == flag_true) return;
  slot().Line(tool_state.cur_col, tool_state.cur_row, tool_state.cur_col + tool_state.run_length,
              tool_state.cur_row, tool_state.colour_table[tool_state.stream_byte]);
  move_right(tool_state.run_length);
}

void paint_literals() {
  tool_state.run_length = static_cast<std::int16_t>((tool_state.stream_byte - 1) / 2);
  for (std::int16_t i = 0; i < tool_state.run_length; ++i) {
    take_stream_byte();
    if (tool_state.stream_ended == flag_true) return;
    slot().PSet(tool_state.cur_col, tool_state.cur_row,
                tool_state.colour_table[tool_state.stream_byte]);
    move_right(1);
  }
}

}  // namespace

void decode_stream_op() {
  if (tool_state.stream_byte == 0) {
    end_row();
  } else if (tool_state.stream_byte == 1) {
    skip();
  } else if (tool_state.stream_byte % 2 == 0) {
    paint_run();
  } else {
    paint_literals();
  }
}

void decode_icon() {
  tool_state.cur_row = tool_state.icon_header.row_start;
  tool_state.cur_col = tool_state.icon_header.col_start;
  tool_state.stream_ended = flag_false;
  while (tool_state.cur_row <= tool_state.icon_header.row_end) {
    take_stream_byte();
    if (tool_state.stream_ended == flag_true) return;
    decode_stream_op();
  }
}

}  // namespace ostrane
