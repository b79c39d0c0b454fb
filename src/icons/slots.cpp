#include "icons/slots.h"

#include <algorithm>

#include "forms/form1.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

constexpr int scale_in_pixels = 3;
constexpr std::int32_t empty_slot_side = 100;  // twips
constexpr std::int32_t grid_gap = 15;          // twips between two slots

void place_on_current_row(forms_layer::picture_box& slot) {
  slot.Move(tool_state.next_slot_left, tool_state.next_slot_top);
  tool_state.next_slot_left += tool_state.slot_gap + slot.Width();
  slot.Visible = true;
}

void begin_new_row() {
  tool_state.next_slot_top += tool_state.slot_gap + tool_state.row_height;
  tool_state.next_slot_left = grid_left;
  tool_state.row_height = 0;
}

bool fits_on_current_row(const forms_layer::picture_box& slot) {
  return tool_state.current_slot == 1 ||
         tool_state.next_slot_left + slot.Width() + tool_state.slot_gap < Form1.Frame1.Width();
}

bool new_row_fits(const forms_layer::picture_box& slot) {
  return tool_state.row_height + tool_state.next_slot_top + tool_state.slot_gap + slot.Height() <
         Form1.Frame1.Height();
}

// Returns false if the slot does not fit.
bool place_in_grid(forms_layer::picture_box& slot) {
  if (!fits_on_current_row(slot)) {
    if (!new_row_fits(slot)) return false;
    begin_new_row();
  }
  place_on_current_row(slot);
  tool_state.row_height = std::max(tool_state.row_height, slot.Height());
  return true;
}

void store_icon_data() {
  const icon_head& head = tool_state.icon_header;
  tool_state.slot_data[static_cast<std::size_t>(tool_state.current_slot)] = {
      .cols = head.no_of_cols,
      .rows = head.no_of_rows,
      .first_col = head.col_start,
      .last_col = head.col_end,
      .first_row = head.row_start,
      .last_row = head.row_end};
}

void update_series() {
  const bool is_last = tool_state.icon_number == tool_state.shp_head.icon_count;
  if (is_last ||
      tool_state.current_slot >= std::min<std::int32_t>(tool_state.max_icons, max_slots)) {
    tool_state.series_full = flag_true;
  }
  tool_state.series_next_icon = tool_state.next_icon - 1;
}

}  // namespace

void load_slot(std::int16_t slot) {
  if (tool_state.slots_loaded >= slot) return;
  Form1.s16_image.Load(slot);
  ++tool_state.slots_loaded;
  Form1.s16_image(slot).ScaleMode = scale_in_pixels;
  Form1.s16_image(slot).Visible = false;
}

void empty_slot(std::int32_t slot) {
  Form1.s16_image(slot).Cls();
  Form1.s16_image(slot).Height = empty_slot_side;
  Form1.s16_image(slot).Width = empty_slot_side;
}

void clear_slots_for_icons() {
  for (std::int32_t slot = 1; slot <= tool_state.slots_loaded; ++slot) {
    Form1.s16_image(slot).ToolTipText = icon_tool_tip;
    Form1.s16_image(slot).BackColor = forms_layer::system_button_face;
    empty_slot(slot);
  }
}

void place_icon_slot() {
  if (place_in_grid(Form1.s16_image(tool_state.current_slot))) {
    ++tool_state.next_icon;
  } else {
    tool_state.series_full = flag_true;
    tool_state.slot_fits = flag_false;
  }
  store_icon_data();
  update_series();
}

void reset_icon_view() {
  // A running motion would step through the slots of the next series.
  Form1.Timer1.Enabled = false;
  tool_state.stream.entry_bytes_left = 0;
  for (std::int32_t slot = 1; slot <= tool_state.slots_loaded; ++slot) {
    Form1.s16_image(slot).Visible = false;
    Form1.s16_image(slot).Cls();
    Form1.s16_image(slot).BackColor = forms_layer::system_button_face;
  }
  Form1.Text3.Text = "";
  tool_state.browse_ready = flag_false;
  Form1.Refresh();
  tool_state.next_slot_left = grid_left;
  tool_state.next_slot_top = grid_top;
  tool_state.slot_gap = grid_gap;
  tool_state.row_height = 0;
}

}  // namespace ostrane
