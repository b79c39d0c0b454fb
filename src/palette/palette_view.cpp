#include "palette/palette_view.h"

#include <string>

#include "data/number_text.h"
#include "forms/form1.h"
#include "icons/slots.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr std::int16_t swatches_per_row = 16;
// Lengths in twips.
constexpr std::int32_t swatch_width = 400;
constexpr std::int32_t swatch_height = 260;
constexpr std::int32_t swatch_pitch_x = 440;
constexpr std::int32_t swatch_pitch_y = 300;

void clear_slots() {
  for (std::int32_t slot = 1; slot <= tool_state.slots_loaded; ++slot) {
    empty_slot(slot);
    Form1.s16_image(slot).Visible = false;
    Form1.s16_image(slot).Refresh();
  }
}

std::string swatch_tool_tip(std::size_t index) {
  const auto& stored = tool_state.stored_palette[index];
  return "Palette # " + sign_column_text(static_cast<std::int64_t>(index)) +
         " : (red=" + sign_column_text(stored[2]) + ", green=" + sign_column_text(stored[1]) +
         ", blue=" + sign_column_text(stored[0]) + ")";
}

void show_swatch(std::size_t index) {
  forms_layer::picture_box& swatch = Form1.s16_image(static_cast<std::int32_t>(index) + 1);
  swatch.Height = swatch_height;
  swatch.Width = swatch_width;
  swatch.BackColor = tool_state.colour_table[index];
  swatch.Move(tool_state.next_slot_left, tool_state.next_slot_top);
  swatch.Visible = true;
  swatch.ToolTipText = swatch_tool_tip(index);
}

}  // namespace

void show_palette_view() {
  Form1.Timer1.Enabled = false;
  Form1.Text2.Text = "256";
  Form1.Text3.Text = "palette 0 - 255";
  clear_slots();
  std::int16_t palette_column = 0;
  std::int16_t palette_row = 0;
  for (std::size_t i = 0; i < tool_state.colour_table.size(); ++i) {
    load_slot(static_cast<std::int16_t>(i + 1));
    ++palette_column;
    tool_state.next_slot_left = palette_column * swatch_pitch_x;
    tool_state.next_slot_top = palette_row * swatch_pitch_y + grid_top;
    if (palette_column == swatches_per_row) {
      ++palette_row;
      palette_column = 0;
    }
    show_swatch(i);
  }
}

}  // namespace ostrane
