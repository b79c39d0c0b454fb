#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "forms_layer/property.h"

namespace forms_layer {

class control;
class form;
class timer;
class menu_item;
class context_menu;
class picture_box;

// In device-independent pixels. Small, so that an event that holds one needs no memory.
struct screen_point {
  std::int16_t x = 0;
  std::int16_t y = 0;
};

// A kind of file that the user can save, such as "PNG" with the ending ".png".
struct file_kind {
  std::string label;
  std::string ending;
};

struct save_question {
  std::string title;
  std::string stem;              // the proposed name is this and the ending of the first kind
  std::vector<file_kind> kinds;  // at least one
};

struct save_answer {
  std::filesystem::path path;  // empty if the user gave none
  std::size_t kind = 0;        // the selected one; the name may have another ending
};

// Writes files into a folder. Returns a message for the user, or "".
using file_writer = std::function<std::string(const std::filesystem::path& folder)>;

// Shows the forms to a user. This one shows nothing: it records the messages, picks nothing and
// gives no path.
class screen {
 public:
  screen() = default;
  screen(const screen&) = delete;
  screen& operator=(const screen&) = delete;
  virtual ~screen() = default;

  virtual void control_changed(control&, property_id) {}
  virtual void form_changed(form&, property_id) {}
  virtual void menu_changed(form& /*owner*/, menu_item&) {}
  virtual void timer_changed(timer&) {}

  // Let the screen repaint what changed, without handling user input. It may limit the rate.
  virtual void refresh(form&) {}
  virtual void refresh(control&) {}

  // Shows a modal box with an OK button and returns when the user closes it.
  virtual void message_box(const std::string& title, const std::string& text);

  // Opens a menu and returns the item that the user picks, or null.
  virtual menu_item* pick_item(context_menu&, screen_point) { return nullptr; }

  // Shows the system's dialog for a file to save to. It asks before it returns an existing file.
  virtual save_answer ask_save_path(const save_question&) { return {}; }

  // Shows the system's dialog for a folder. Empty if the user gave none.
  virtual std::filesystem::path ask_folder(const std::string& /*title*/) { return {}; }

  // Lets the user drag files of these names out of the window. `write` is called when they are
  // dropped, possibly after the return; the screen then shows its message.
  virtual void drag_files(const std::vector<std::filesystem::path>& /*names*/,
                          const file_writer& /*write*/) {}

  // Puts the pixels of a picture on the clipboard; unset ones are transparent.
  virtual void copy_picture(const picture_box&) {}

  virtual void end_process() {}
};

// The attached screen, else one that shows nothing. A screen is not owned and must live until
// another one, or null, is attached.
screen& the_screen();
void attach_screen(screen* shown);

}  // namespace forms_layer
