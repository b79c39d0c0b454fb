#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "forms_layer/colour.h"
#include "forms_layer/property.h"

namespace forms_layer {

class form;
class container;

enum class control_kind {
  frame,
  label,
  button,
  text_box,
  list_box,
  picture_box,
  progress_bar,
  drive_list,
  dir_list,
  file_list,
};

struct font_design {
  const char* name = "MS Sans Serif";
  double points = 8.25;
  bool bold = false;
};

struct place {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
};

// A control as designed. All lengths are twips. Fields that a kind has no use for stay as they are.
struct design {
  const char* name = "";
  place at = {};
  int tab_index = 0;
  std::string text = {};
  std::string tool_tip = {};
  colour back_color = system_button_face;
  font_design font = {};
  bool visible = true;
  bool enabled = true;
  bool locked = false;
  bool centred = false;
  bool multi_line = false;
  int max_length = 0;  // characters; 0 is no limit
  std::string pattern = "*";
  bool cancel = false;           // of a button or a label: Escape does what a click on it does
  std::string spoken_name = {};  // what a screen reader calls it, if its kind is not enough
  const char* picture = "";  // of a picture box: a picture that the program carries, as designed
};

using event = std::function<void()>;

// What all controls share. A control lives as long as its form and never moves in memory.
class control {
 public:
  control(container& parent, control_kind kind, const design& designed);
  control(const control&) = delete;
  control& operator=(const control&) = delete;
  virtual ~control();

  const control_kind kind;
  const design designed;
  container& parent;

  property<std::int32_t, property_id::place, control> Left;
  property<std::int32_t, property_id::place, control> Top;
  property<std::int32_t, property_id::place, control> Width;
  property<std::int32_t, property_id::place, control> Height;
  property<bool, property_id::visible, control> Visible;
  property<bool, property_id::enabled, control> Enabled;
  property<colour, property_id::back_color, control> BackColor;
  property<std::string, property_id::tool_tip, control> ToolTipText;

  event LostFocus;

  // Moves the control in its parent; the size stays.
  void Move(std::int32_t left, std::int32_t top);

  // Brings the control up to date on the screen before it returns.
  void Refresh();

  form& owner_form();

  // True if the user can act on it: it and all it stands in are visible and enabled.
  bool takes_input();

  // Called when the form is about to come up on the screen, each time.
  virtual void about_to_show() {}

  // Called when the user wants to see what drives and folders hold now. Throws file_error.
  virtual void reload() {}

  // Called after a property was written; `differs` is false if it had that value before.
  virtual void written(property_id what, bool differs);

 protected:
  void tell_screen(property_id what);
};

}  // namespace forms_layer
