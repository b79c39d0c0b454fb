#pragma once

#include <QTimer>
#include <map>

#include "forms_layer/timer.h"

namespace desktop {

// Makes the timers of the forms tick.
class timers {
 public:
  // Goes by what the timer's properties are now. A running one keeps its pace unless its interval
  // is another one now.
  void follow(forms_layer::timer& written);

 private:
  std::map<forms_layer::timer*, QTimer> running_;
};

}  // namespace desktop
