#pragma once

#include <string>

#include "forms_layer/property.h"

namespace forms_layer {

class control;
class form;
class timer;
class menu_item;

// What shows the forms to a user. Without one attached the forms work all the same.
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

  // Paint what changed at once, before the call returns, without taking user input.
  virtual void refresh(form& shown) = 0;
  virtual void refresh(control& shown) = 0;

  // Shows a modal box with one OK button and returns when it was answered.
  virtual void message_box(const std::string& title, const std::string& text) = 0;

  virtual void end_process() = 0;
};

// The attached screen, or null, as at first. It is not owned and must live until another is
// attached.
screen* attached_screen();
void attach_screen(screen* shown);

}  // namespace forms_layer
