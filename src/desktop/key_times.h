#pragma once

#include <QKeyEvent>
#include <deque>

namespace desktop {

// With a client of the screen reader's interface Qt keeps each key until the client has answered,
// and then delivers a copy without the time of the press. This finds that time.
class key_times {
 public:
  // Call before `receiver` gets a spontaneous press of a key. One that reaches a widget was not
  // kept by Qt: the times stored so far are then not needed.
  void note(const QObject& receiver, const QKeyEvent& press);
  // Call before a press that is not spontaneous.
  void restore(QKeyEvent& press);

 private:
  struct kept_press {
    int key;
    quint64 time;
  };
  std::deque<kept_press> kept_;
};

}  // namespace desktop
