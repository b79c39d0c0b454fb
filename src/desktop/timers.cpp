#include "desktop/timers.h"

#include "forms_layer/user.h"

namespace desktop {

void timers::follow(forms_layer::timer& written) {
  const auto [at, is_new] = running_.try_emplace(&written);
  QTimer& timer = at->second;
  if (is_new) {
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &timer,
                     [&written] { forms_layer::user::tick(written); });
  }
  const int interval = written.Interval();
  if (!written.Enabled() || interval <= 0) {
    timer.stop();
  } else if (!timer.isActive() || timer.interval() != interval) {
    timer.start(interval);
  }
}

}  // namespace desktop
