#include "handlers/main_window.h"

#include <cmath>
#include <optional>
#include <string>

#include "files/text.h"
#include "forms/form1.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

// Twips: window size minus control size, and the sizes up to which the layout stays as it is.
constexpr std::int32_t frame_height_margin = 825;
constexpr std::int32_t list_height_margin = 600;  // from the frame
constexpr std::int32_t text_height_margin = 1800;
constexpr std::int32_t frame_width_margin = 2100;
constexpr std::int32_t text_width_margin = 2400;
constexpr std::int32_t height_limit = 1900;
constexpr std::int32_t width_limit = 2500;

// Rounded half to even; nullopt for anything but a number in the range of 16 bits.
std::optional<std::int16_t> as_int16(const std::string& text) {
  const std::optional<double> number = files::as_number(text);
  if (!number) return std::nullopt;
  const double whole = std::nearbyint(*number);
  if (whole < INT16_MIN || whole > INT16_MAX) return std::nullopt;
  return static_cast<std::int16_t>(whole);
}

}  // namespace

void lay_out_main_window() {
  if (Form1.Height() > height_limit) {
    Form1.Frame1.Height = Form1.Height() - frame_height_margin;
    Form1.List1.Height = Form1.Frame1.Height() - list_height_margin;
    Form1.Text6.Height = Form1.Height() - text_height_margin;
  }
  if (Form1.Width() > width_limit) {
    Form1.Frame1.Width = Form1.Width() - frame_width_margin;
    Form1.Text6.Width = Form1.Width() - text_width_margin;
  }
}

void check_interval() {
  if (!files::as_number(Form1.Text4.Text())) Form1.Text4.Text = default_interval_text;
}

void check_max_icons() {
  const std::optional<std::int16_t> number = as_int16(Form1.Text5.Text());
  if (number) {
    tool_state.max_icons = *number;
  } else {
    Form1.Text5.Text = std::to_string(tool_state.max_icons);
  }
}

}  // namespace ostrane
