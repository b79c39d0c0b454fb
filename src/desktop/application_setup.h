#pragma once

#include <QApplication>

namespace desktop {

// Survives a lack of memory outside the tool's handlers: Qt drops the event.
class application : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;
};

// To be called once, right after the QApplication is made. Sets the look of the tool and numbers
// without the user's locale; the process does not quit when its last window closes.
void set_up_application();

}  // namespace desktop
