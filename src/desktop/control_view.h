#pragma once

#include <QWidget>

#include "forms_layer/control.h"

namespace desktop {

// The widget that shows one control. It mirrors the control's properties, in one go for all that
// were written meanwhile, and tells the tool what the user does to it.
class control_view {
 public:
  explicit control_view(forms_layer::control& shown) : control(shown) {}
  control_view(const control_view&) = delete;
  control_view& operator=(const control_view&) = delete;
  virtual ~control_view() = default;

  forms_layer::control& control;
  virtual QWidget& widget() = 0;

  // Keeps in mind that a property was written; true if nothing was kept before.
  bool note(forms_layer::property_id what);
  // Shows all that was noted.
  void catch_up();
  // Shows everything, as for a new widget or a new theme.
  void show_all();

 protected:
  // Caption, text, items or range; what the selection refers to is shown before it.
  virtual void show_content() {}
  virtual void show_selection() {}
  virtual void show_colours() {}

 private:
  unsigned noted_ = 0;
};

}  // namespace desktop
