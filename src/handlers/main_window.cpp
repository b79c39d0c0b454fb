#include "handlers/main_window.h"

#include <cmath>
#include <optional>
#include <string>

#include "files/text.h"
#include "forms/form1.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

// What the outer size of the window has more than a control in it (twips), and the sizes up to
// which they stay as they are.
constexpr std::int32_t frame_height_less = 825;
constexpr std::int32_t list_height_less = 600;  // than the frame
constexpr std::int32_t text_height_less = 1800;
constexpr std::int32_t frame_width_less = 2100;
constexpr std::int32_t text_width_less = 2400;
constexpr std::int32_t too_low = 1900;
constexpr std::int32_t too_narrow = 2500;

// Whole, halves to the nearest even one; nothing for what 16 bits cannot hold.
std::optional<std::int16_t> as_16_bits(const std::string& text) {
  const std::optional<double> number = files::as_number(text);
  if (!number) return std::nullopt;
  const double whole = std::nearbyint(*number);
  if (whole < INT16_MIN || whole > INT16_MAX) return std::nullopt;
  return static_cast<std::int16_t>(whole);
}

}  // namespace

void lay_out_main_window() {
  if (Form1.Height() > too_low) {
    Form1.Frame1.Height = Form1.Height() - frame_height_less;
    Form1.List1.Height = Form1.Frame1.Height() - list_height_less;
    Form1.Text6.Height = Form1.Height() - text_height_less;
  }
  if (Form1.Width() > too_narrow) {
    Form1.Frame1.Width = Form1.Width() - frame_width_less;
    Form1.Text6.Width = Form1.Width() - text_width_less;
  }
}

void check_pace() {
  if (!files::as_number(Form1.Text4.Text())) Form1.Text4.Text = pace_at_start;
}

void check_max_icons() {
  const std::optional<std::int16_t> number = as_16_bits(Form1.Text5.Text());
  if (number) {
    tool_state.max_icons = *number;
  } else {
    Form1.Text5.Text = std::to_string(tool_state.max_icons);
  }
}

}  // namespace ostrane
