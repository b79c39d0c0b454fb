#include "handlers/main_window.h"

#include <cmath>
#include <optional>
#include <string>

#include "forms/form1.h"
#include "platform/text.h"
#include "state/tool_state.h"

namespace ostrane {

namespace {

// Whole, halves to the nearest even one; nothing for what 16 bits cannot hold.
std::optional<std::int16_t> as_16_bits(const std::string& text) {
  const std::optional<double> number = platform::as_number(text);
  if (!number) return std::nullopt;
  const double whole = std::nearbyint(*number);
  if (whole < INT16_MIN || whole > INT16_MAX) return std::nullopt;
  return static_cast<std::int16_t>(whole);
}

}  // namespace

void lay_out_main_window() {
  if (Form1.Height() > 1900) {
    Form1.Frame1.Height = Form1.Height() - 825;
    Form1.List1.Height = Form1.Frame1.Height() - 600;
    Form1.Text6.Height = Form1.Height() - 1800;
  }
  if (Form1.Width() > 2500) {
    Form1.Frame1.Width = Form1.Width() - 2100;
    Form1.Text6.Width = Form1.Width() - 2400;
  }
}

void check_pace() {
  if (!platform::as_number(Form1.Text4.Text())) Form1.Text4.Text = "10";
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
