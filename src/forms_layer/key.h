#pragma once

#include <string>

#include "forms_layer/control.h"

namespace forms_layer {

class menu_item;

// What a key does on the screen only.
enum class view_action {
  none,
  zoom_in,
  zoom_out,
  end_zoom,
  find,
  find_next,
  find_previous,
  find_number,
  focus_list,
};

// A key of a window, beside those of its controls and menus. It does one of three things.
struct key {
  std::string name;                        // as Qt writes it, such as "Ctrl+O"
  std::string text;                        // what it does, for the list of keys
  event Pressed = {};                      // of the tool
  menu_item* item = nullptr;               // of a context menu, for the current element
  view_action action = view_action::none;  // of the screen
};

}  // namespace forms_layer
