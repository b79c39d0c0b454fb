#pragma once

#include <QPushButton>

#include "desktop/control_view.h"
#include "platform/button.h"

namespace desktop {

// A push button whose caption wraps, and which Enter presses wherever it stands.
class button_view : public QPushButton, public control_view {
 public:
  button_view(platform::button& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override;
  void show_colours() override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  platform::button& button_;
};

}  // namespace desktop
