#pragma once

#include <string>

#include "forms_layer/property.h"

namespace forms_layer {

class control;
class form;
class timer;
class menu_item;

// Shows the forms to a user. The forms also work without one.
class screen {
 public:
  screen() = default;
  screen(const screen&) = delete;
  screen& operator=(const screen&) = delete;
  virtual ~screen() = default;

  virtual void control_changed(control& changed, property_id what) = 0;
  virtual void form_changed(form& changed, property_id what) = 0;
  virtual void menu_changed(form& owner, menu_item& changed) = 0;
  virtual void timer_changed(timer& changed) = 0;

  // Repaint what changed before the call returns, without handling user input.
  virtual void refresh(form& shown) = 0;
  virtual void refresh(control& shown) = 0;

  // Shows a modal box with an OK button and returns when the user closes it.
  virtual void message_box(const std::string& title, const std::string& text) = 0;

  virtual void end_process() = 0;
};

// The attached screen, or null. It is not owned and must live until another one, or null, is
// attached.
screen* attached_screen();
void attach_screen(screen* shown);

}  // namespace forms_layer
