#include "handlers/load_form1.h"

#include "files/file_error.h"
#include "forms/forms.h"
#include "forms_layer/application.h"
#include "handlers/main_window.h"
#include "icons/slots.h"
#include "lists/read_iconlist.h"
#include "palette/palette_store.h"
#include "state/tool_state.h"
#include "state/version.h"

namespace ostrane {

namespace {

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
  read_iconlist();
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

}  // namespace ostrane
