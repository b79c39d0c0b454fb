#include "icons/series.h"

#include <string>

#include "data/number_text.h"
#include "forms/form1.h"
#include "forms/form3.h"
#include "forms_layer/message_box.h"
#include "icons/decode_icon.h"
#include "icons/series_reader.h"
#include "icons/slots.h"
#include "progress/progress.h"
#include "state/open_archive.h"

namespace ostrane {

namespace {

constexpr std::int16_t max_refusals_reported = 20;

// Twips. The border of the slot takes one pixel on each side; `no_of_rows` is the last row.
std::int32_t slot_height() {
  return (tool_state.icon_header.no_of_rows + 3) * tool_state.twips_per_pixel_y;
}

std::int32_t slot_width() {
  return (tool_state.icon_header.no_of_cols + 3) * tool_state.twips_per_pixel_x;
}

// Slots have positive 16-bit sizes.
bool slot_size_is_valid() {
  return slot_height() > 0 && slot_height() <= INT16_MAX && slot_width() > 0 &&
         slot_width() <= INT16_MAX;
}

void size_slot() {
  forms_layer::picture_box& slot = Form1.s16_image(tool_state.current_slot);
  slot.Height = slot_height();
  slot.Width = slot_width();
}

void stop_after_last_icon() {
  if (tool_state.icon_number == tool_state.shp_head.icon_count) tool_state.series_full = flag_true;
}

void draw_drawable_icon() {
  size_slot();
  tool_state.slot_fits = flag_true;
  place_icon_slot();
  if (tool_state.slot_fits == flag_true) decode_icon();
}

void show_blank_icon() {
  size_slot();
  place_icon_slot();
}

void report_refused_icon() {
  if (tool_state.refusals_reported == max_refusals_reported) return;
  ++tool_state.refusals_reported;
  const bool is_last = tool_state.refusals_reported == max_refusals_reported;
  forms_layer::message_box(
      refused_icon_text() +
      (is_last ? "\nFurther icons of this series are refused without a message." : ""));
}

void refuse_icon() {
  report_refused_icon();
  ++tool_state.next_icon;
  stop_after_last_icon();
}

void draw_icon() {
  const icon_kind kind = classify_icon(tool_state.icon_header);
  if (kind == icon_kind::refused || !slot_size_is_valid()) {
    refuse_icon();
  } else if (kind == icon_kind::drawable) {
    draw_drawable_icon();
  } else {
    show_blank_icon();
  }
}

void draw_next_icon() {
  // Load before counting, so that a bad_alloc leaves the count right.
  const auto slot = static_cast<std::int16_t>(tool_state.current_slot + 1);
  load_slot(slot);
  tool_state.current_slot = slot;
  tool_state.icon_number = tool_state.next_icon;
  if (!begin_current_icon()) {
    tool_state.series_full = flag_true;
    return;
  }
  draw_icon();
  Form1.Text2.Text = std::to_string(tool_state.icon_number);
  Form1.Refresh();
}

void draw_from_archive() {
  if (tool_state.directory_read == flag_false) read_directory();
  while (tool_state.series_full == flag_false) {
    if (tool_state.next_icon > tool_state.shp_head.icon_count) break;
    draw_next_icon();
  }
}

// Clears the view and starts a series at this icon.
void reset_series(std::int16_t first_icon) {
  reset_icon_view();
  tool_state.next_icon = first_icon;
  tool_state.series_first_icon = first_icon;
  tool_state.series_next_icon = 0;
  tool_state.current_slot = 0;
  tool_state.series_full = flag_false;
  tool_state.refusals_reported = 0;
}

// If the archive cannot be read, shows a message and the icons drawn so far.
void draw_shp_series() {
  const std::string failure = read_open_archive(draw_from_archive);
  if (!failure.empty()) {
    forms_layer::message_box(failure);
    if (tool_state.directory_read == flag_false) tool_state.shp_head = {};
  }
  Form1.Text2.Text = std::to_string(tool_state.shp_head.icon_count);
  tool_state.slots_drawn = tool_state.current_slot;
  tool_state.shown_slot = 1;
  Form1.Text3.Text = sign_column_text(tool_state.series_first_icon) + " - " +
                     sign_column_text(tool_state.series_next_icon);
  Form1.Command3.Enabled = false;
  Form1.Command4.Enabled = false;
}

void draw_under_working_message() {
  show_working_message();
  draw_shp_series();
  Form3.Visible = false;
}

}  // namespace

void show_shp_series() {
  reset_series(1);
  tool_state.directory_read = flag_false;
  Form3.Visible = true;
  set_bars_visible(false);
  draw_under_working_message();
}

void show_next_series() {
  const bool is_last_series = tool_state.series_next_icon >= tool_state.shp_head.icon_count;
  if (is_last_series || !icons_are_from_open_archive()) return;
  require_open_archive();
  Form1.Text2.Text = "";
  reset_series(tool_state.next_icon);
  Form3.Visible = true;
  draw_under_working_message();
}

}  // namespace ostrane
