#pragma once

#include <QEvent>
#include <QObject>
#include <functional>

namespace desktop {

// Filters every event of the program. It drops input to windows of disabled forms, whose look is
// unchanged, reports focus changes to the tool, and turns the second press of a double click into a
// single press if the first was on another widget.
class input_filter : public QObject {
 public:
  // Called when the user presses a mouse button on the window of a disabled form.
  std::function<void()> on_barred_press = [] {};
  // True if the latest press was that of a key.
  bool key_was_latest() const { return key_was_latest_; }

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool key_was_latest_ = false;
  const QObject* pressed_ = nullptr;  // by the latest press; may be deleted
};

}  // namespace desktop
