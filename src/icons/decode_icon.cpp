#include "icons/decode_icon.h"

#include "data/icon_decoder.h"
#include "forms/form1.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

struct slot_canvas {
  forms_layer::picture_box& slot;

  void run(std::int32_t column, std::int32_t row, std::int32_t count, std::uint8_t index) {
    slot.Line(column, row, column + count, row, tool_state.colour_table[index]);
  }
  void pixels(std::int32_t column, std::int32_t row, std::int32_t count, const std::byte* indices) {
    slot.PSet(column, row, count, [indices](std::size_t number) {
      return tool_state.colour_table[std::to_integer<std::uint8_t>(indices[number])];
    });
  }
};

}  // namespace

void decode_icon() {
  slot_canvas canvas{Form1.s16_image(tool_state.current_slot)};
  icon_decoder(tool_state.stream, tool_state.archive_file, tool_state.icon_header, canvas).decode();
}

}  // namespace ostrane
