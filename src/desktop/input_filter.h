#pragma once

#include <QEvent>
#include <QObject>

namespace desktop {

// Filters every event of the program. It drops input to windows of disabled forms, whose look is
// unchanged, reports focus changes to the tool, and turns the second press of a double click into a
// single press if the first was on another widget.
class input_filter : public QObject {
 public:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool is_double_click_of_another(const QObject* receiver, QEvent::Type type);

  const QObject* pressed_ = nullptr;  // by the latest press; may be deleted
};

}  // namespace desktop
