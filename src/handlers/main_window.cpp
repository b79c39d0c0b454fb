#include "handlers/main_window.h"

#include <cmath>
#include <optional>
#include <string>

#include "data/icon_names.h"
#include "files/file_error.h"
#include "files/text.h"
#include "forms/forms.h"
#include "forms_layer/application.h"
#include "icons/slots.h"
#include "palette/palette_store.h"
#include "state/tool_state.h"
#include "version/version.h"

namespace ostrane {

namespace {

constexpr const char* default_interval_text = "10";  // of `Text4`, hundredths of a second

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

constexpr std::int16_t initial_slots = 12;
constexpr std::int16_t default_max_icons = 300;

void set_form2_to_drive_c() {
  try {
    Form2.Dir1.Path = "C:\\";
  } catch (const files::file_error&) {
    // The dialog then starts in the current folder.
  }
}

void load_first_slots() {
  for (std::int16_t slot = 1; slot <= initial_slots; ++slot) load_slot(slot);
}

}  // namespace

void load_form1() {
  tool_state.program_title = std::string("Ostrane.dat-tool - ") + version;
  tool_state.app_path = forms_layer::application.Path;
  tool_state.max_icons = default_max_icons;
  Form1.Caption = tool_state.program_title;
  Form1.Text5.Text = std::to_string(tool_state.max_icons);
  Form1.Timer1.Enabled = false;
  set_form2_to_drive_c();
  Form1.Text4.Text = default_interval_text;
  set_default_palette();
  tool_state.icon_names = read_icon_names(icon_names_file_in(tool_state.app_path));
  load_first_slots();
  tool_state.twips_per_pixel_x = static_cast<std::int16_t>(forms_layer::application.TwipsPerPixelX);
  tool_state.twips_per_pixel_y = static_cast<std::int16_t>(forms_layer::application.TwipsPerPixelY);
  Form1.mnu_ext.Enabled = false;
  Form1.mnu_make.Enabled = true;
  Form1.mnu_save.Enabled = false;
  Form1.mnu_read_filelist.Enabled = false;
  Form1.Text6.Visible = false;
  tool_state.icon_number = 0;
}

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

void correct_interval() {
  if (!files::as_number(Form1.Text4.Text())) Form1.Text4.Text = default_interval_text;
}

void accept_max_icons() {
  const std::optional<std::int16_t> number = as_int16(Form1.Text5.Text());
  if (number) {
    tool_state.max_icons = *number;
  } else {
    Form1.Text5.Text = std::to_string(tool_state.max_icons);
  }
}

}  // namespace ostrane
