#pragma once

#include <QApplication>

#include "desktop/key_times.h"

namespace desktop {

// Drops an event if memory runs out outside the tool's handlers, and restores the times of keys.
class application : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;

 private:
  key_times key_times_;
};

// Call once after the QApplication is created. Sets the tool's style and the C locale for numbers,
// and does not quit when the last window closes.
void set_up_application();

}  // namespace desktop
