#pragma once

#include <QApplication>

namespace desktop {

// Drops an event if memory runs out outside the tool's handlers.
class application : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;
};

// Call once after the QApplication is created. Sets the tool's style and the C locale for numbers,
// and does not quit when the last window closes.
void set_up_application();

}  // namespace desktop
