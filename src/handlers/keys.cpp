#include "handlers/keys.h"

#include <string>

#include "forms/form1.h"
#include "forms/form2.h"
#include "forms_layer/application.h"
#include "forms_layer/message_box.h"
#include "handlers/entry_menu.h"
#include "handlers/open_path.h"
#include "handlers/window_switching.h"

namespace ostrane {

namespace {

using forms_layer::view_action;

void show_keys() {
  std::string text;
  for (const forms_layer::key& key : Form1.keys) {
    text += (text.empty() ? "" : "\n") + key.name + ": " + key.text;
  }
  forms_layer::message_box(text);
}

}  // namespace

void wire_keys() {
  Form1.keys = {
      {"F1", "shows these keys", show_keys},
      {"Ctrl+O", "opens the dialog for an archive, and reads it there", open_form2},
      {"F5", "reads the archive again, or in a dialog the folder", read_archive_again},
      {"Ctrl+L", "goes to the list", {}, nullptr, view_action::focus_list},
      {"Ctrl+F", "finds a name or description in the list", {}, nullptr, view_action::find},
      {"F3", "finds the next one", {}, nullptr, view_action::find_next},
      {"Shift+F3", "finds the previous one", {}, nullptr, view_action::find_previous},
      {"Ctrl+G", "goes to the entry of a number", {}, nullptr, view_action::find_number},
      {"Ctrl+E", "extracts the selected entry or entries", extract_selection},
      {"Ctrl+C", "copies the picture, in the list the name", {}, &Form1.mnu_copy_picture},
      {"Ctrl+S", "saves the picture", {}, &Form1.mnu_save_picture},
      {"Ctrl++", "enlarges the picture", {}, nullptr, view_action::zoom_in},
      {"Ctrl+-", "makes it smaller again", {}, nullptr, view_action::zoom_out},
      {"Ctrl+0", "shows it in its own size again", {}, nullptr, view_action::end_zoom},
      {"Ctrl+Q", "ends the program", forms_layer::end_process},
  };
  Form2.keys = {{"Ctrl+O", "reads the archive", confirm_form2}};
}

}  // namespace ostrane
