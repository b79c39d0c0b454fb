#pragma once

#include <QObject>

namespace desktop {

// Sees every event of the program before its receiver does. It keeps input from the windows of
// disabled forms, which look as ever, and tells the tool when a control gets the focus.
class input_filter : public QObject {
 public:
  bool eventFilter(QObject* receiver, QEvent* event) override;
};

}  // namespace desktop
