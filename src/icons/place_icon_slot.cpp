#include "icons/place_icon_slot.h"

#include "forms/form1.h"
#include "icons/slot_grid.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

void show_on_current_row(forms_layer::picture_box& slot) {
  slot.Move(tool_state.next_slot_left, tool_state.next_slot_top);
  tool_state.next_slot_left += tool_state.slot_gap + slot.Width();
  slot.Visible = true;
  ++tool_state.next_icon;
}

void begin_new_row() {
  tool_state.next_slot_top += tool_state.slot_gap + tool_state.row_height;
  tool_state.next_slot_left = grid_left;
}

bool fits_on_current_row(const forms_layer::picture_box& slot) {
  return tool_state.current_slot == 1 ||
         tool_state.next_slot_left + slot.Width() + tool_state.slot_gap < Form1.Frame1.Width();
}

bool new_row_fits(const forms_layer::picture_box& slot) {
  return tool_state.row_height + tool_state.next_slot_top + tool_state.slot_gap + slot.Height() <
         Form1.Frame1.Height();
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

}  // namespace

void place_icon_slot() {
  forms_layer::picture_box& slot = Form1.s16_image(tool_state.current_slot);
  if (fits_on_current_row(slot)) {
    show_on_current_row(slot);
    if (slot.Height() > tool_state.row_height) tool_state.row_height = slot.Height();
  } else if (new_row_fits(slot)) {
    begin_new_row();
    show_on_current_row(slot);
    tool_state.row_height = slot.Height();
  } else {
    tool_state.series_full = flag_true;
    tool_state.slot_fits = flag_false;
  }
  if (tool_state.icon_number == tool_state.shp_head.icon_count) tool_state.series_full = flag_true;
  store_icon_data();
  const bool table_is_full = tool_state.current_slot >= max_slots;
  if (tool_state.current_slot >= tool_state.max_icons || table_is_full) {
    tool_state.series_full = flag_true;
  }
  tool_state.series_next_icon = tool_state.next_icon - 1;
}

}  // namespace ostrane
