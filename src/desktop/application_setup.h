#pragma once

#include <QApplication>

#include "desktop/key_times.h"

namespace desktop {

// Drops an event if memory runs out outside the tool's handlers, restores the times of keys and
// counts the releases of mouse buttons.
class application : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;
  // How often a mouse button was released, also during a drag, in which Qt does not tell.
  unsigned mouse_releases() const { return mouse_releases_; }

 private:
  unsigned mouse_releases_ = 0;
  key_times key_times_;
};

// Call once after the QApplication is created. Sets the tool's style and the C locale for numbers,
// and does not quit when the last window closes.
void set_up_application();

}  // namespace desktop
