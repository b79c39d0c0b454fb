#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>
#include <memory>
#include <vector>

namespace desktop {

// The keys that wait when a message box of a handler opens. The box would drop them, so they are
// kept until the end of the handler. They then act on the control that has the focus, not as
// shortcuts.
class held_keys : public QObject {
 public:
  // Takes the input that waits in the queue of the window system. All but keys is dropped. Call
  // before a box opens.
  void take_input();
  // Sends them to the windows that they were typed for, if these are still visible. Call when no
  // handler runs.
  void deliver();

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  struct held_key {
    QPointer<QWindow> window;
    std::unique_ptr<QEvent> event;
  };
  std::vector<held_key> keys_;
};

}  // namespace desktop
