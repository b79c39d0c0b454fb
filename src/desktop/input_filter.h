#pragma once

#include <QEvent>
#include <QObject>

namespace desktop {

// Sees every event of the program before its receiver does. It keeps input from the windows of
// disabled forms, which look as ever, tells the tool when a control gets the focus, and makes the
// second press of a double click a single press if the first one was on another widget.
class input_filter : public QObject {
 public:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool is_double_click_of_another(const QObject* receiver, QEvent::Type type);

  const QObject* pressed_ = nullptr;  // by the latest press; perhaps no longer there
};

}  // namespace desktop
