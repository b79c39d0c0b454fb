#include "icons/motion.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "data/number_text.h"
#include "files/text.h"
#include "forms/form1.h"
#include "icons/slots.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

// Milliseconds.
constexpr double max_interval = 65535;
constexpr std::int32_t default_interval = 100;

// If icons remain after this series, the motion omits its last slot.
std::int16_t last_slot_of_motion() {
  const bool is_last_series = tool_state.series_next_icon == tool_state.shp_head.icon_count;
  const int last = is_last_series ? tool_state.slots_drawn : tool_state.slots_drawn - 1;
  return static_cast<std::int16_t>(std::max(0, last));
}

void set_stepping_enabled(bool enabled) {
  Form1.Command3.Enabled = enabled;
  Form1.Command4.Enabled = enabled;
}

void switch_to_slot(std::int16_t slot) {
  Form1.s16_image(tool_state.shown_slot).Visible = false;
  tool_state.shown_slot = slot;
  Form1.s16_image(slot).Visible = true;
  Form1.Text3.Text = std::to_string(tool_state.series_first_icon - 1 + slot);
}

}  // namespace

std::int32_t motion_interval() {
  const double hundredths = files::as_number(Form1.Text4.Text()).value_or(0);
  if (hundredths <= 0) return default_interval;
  const double milliseconds = std::nearbyint(std::min(hundredths * 10, max_interval));
  return std::max(1, static_cast<std::int32_t>(milliseconds));
}

bool motion_is_looping() { return tool_state.motion_loops == flag_true && Form1.Timer1.Enabled(); }

void end_motion() {
  Form1.Timer1.Enabled = false;
  tool_state.motion_loops = flag_false;
  set_stepping_enabled(true);
}

void start_motion() {
  tool_state.motion_loops = flag_false;
  set_stepping_enabled(false);
  tool_state.browse_ready = flag_true;
  Form1.Timer1.Interval = motion_interval();
  tool_state.motion_last_slot = last_slot_of_motion();
  for (std::int32_t slot = 1; slot <= tool_state.motion_last_slot; ++slot) {
    Form1.s16_image(slot).Move(grid_left, grid_top);
    Form1.s16_image(slot).Visible = false;
  }
  tool_state.loop_counter = 0;
  Form1.Timer1.Enabled = true;
}

void loop_motion() {
  start_motion();
  tool_state.motion_loops = flag_true;
}

void step_motion() {
  if (tool_state.loop_counter == tool_state.motion_last_slot) {
    const bool begins_again =
        tool_state.motion_loops == flag_true && tool_state.motion_last_slot > 0;
    if (!begins_again) return end_motion();
    Form1.s16_image(tool_state.loop_counter).Visible = false;
    tool_state.loop_counter = 0;
  }
  // At the first step the slot before is element 0, which is never shown.
  ++tool_state.loop_counter;
  tool_state.shown_slot = tool_state.loop_counter;
  Form1.s16_image(tool_state.loop_counter - 1).Visible = false;
  Form1.s16_image(tool_state.loop_counter).Visible = true;
  Form1.Text3.Text = sign_column_text(tool_state.series_first_icon - 1 + tool_state.loop_counter);
}

void show_previous_icon() {
  if (tool_state.shown_slot < 2 || tool_state.browse_ready == flag_false) return;
  switch_to_slot(static_cast<std::int16_t>(tool_state.shown_slot - 1));
}

void show_next_icon() {
  if (tool_state.shown_slot >= tool_state.slots_drawn || tool_state.browse_ready == flag_false) {
    return;
  }
  switch_to_slot(static_cast<std::int16_t>(tool_state.shown_slot + 1));
}

}  // namespace ostrane
