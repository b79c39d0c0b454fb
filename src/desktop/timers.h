#pragma once

#include <QTimer>
#include <map>

#include "forms_layer/timer.h"

namespace desktop {

// Runs the timers of the forms.
class timers {
 public:
  // Stops or restarts the QTimer of a timer whose properties were written.
  void sync(forms_layer::timer& changed);

 private:
  std::map<forms_layer::timer*, QTimer> running_;
};

}  // namespace desktop
