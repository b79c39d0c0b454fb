#pragma once

#include <QPushButton>

#include "desktop/control_view.h"
#include "forms_layer/button.h"

namespace desktop {

// A push button. Enter presses it in all windows.
class button_view : public QPushButton, public control_view {
 public:
  button_view(forms_layer::button& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override;
  void show_colours() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  forms_layer::button& button_;
};

}  // namespace desktop
