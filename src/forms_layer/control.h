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

// In twips, relative to the parent.
struct rect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t width = 0;
  std::int32_t height = 0;
};

// The initial state of a control. Lengths are twips. A kind of control ignores fields that it does
// not need.
struct design {
  const char* name = "";
  rect at = {};
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
  bool multi_select = false;  // of a list: Ctrl and Shift select more rows
  int max_length = 0;         // characters; 0 means no limit
  std::string pattern = "*";
  bool cancel = false;           // of a button or a label: Escape clicks it
  std::string spoken_name = {};  // for screen readers, if the kind of the control is not enough
  const char* picture = "";      // name of an image resource that a picture box shows
};

using event = std::function<void()>;

// The base class of all controls. A control lives as long as its form.
class control {
 public:
  control(container& parent, control_kind kind, const design& designed);
  control(const control&) = delete;
  control& operator=(const control&) = delete;
  virtual ~control();

  const control_kind kind;
  const design designed;
  container& parent;

  property<std::int32_t, property_id::rect, control> Left;
  property<std::int32_t, property_id::rect, control> Top;
  property<std::int32_t, property_id::rect, control> Width;
  property<std::int32_t, property_id::rect, control> Height;
  property<bool, property_id::visible, control> Visible;
  property<bool, property_id::enabled, control> Enabled;
  property<colour, property_id::back_color, control> BackColor;
  property<std::string, property_id::tool_tip, control> ToolTipText;

  event LostFocus;

  // In twips, relative to the parent.
  void Move(std::int32_t left, std::int32_t top);

  // Lets the screen show what has changed; a screen may limit the rate.
  void Refresh();

  form& owner_form();

  // True if this control and every ancestor are visible and enabled.
  bool takes_input();

  // Called each time the form becomes visible, before the screen shows it.
  virtual void about_to_show() {}

  // Called on F5: lists of drives, folders and files reload. Throws file_error.
  virtual void reload() {}

  // Called after each assignment to a property; `differs` is false if the value is the same as
  // before.
  virtual void on_assigned(property_id what, bool differs);

 protected:
  void notify_screen(property_id what);
};

}  // namespace forms_layer
