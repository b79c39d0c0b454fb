#pragma once

#include <QPushButton>

#include "desktop/control_view.h"
#include "forms_layer/captioned.h"

namespace desktop {

// A push button. Enter presses it in all windows.
class button_view : public view_of<QPushButton, forms_layer::button> {
 public:
  button_view(forms_layer::button& shown, QWidget* parent);

 protected:
  void show_content() override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace desktop
