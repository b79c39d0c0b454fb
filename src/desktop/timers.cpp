#include "desktop/timers.h"

#include "forms_layer/user.h"

namespace desktop {

void timers::sync(forms_layer::timer& written) {
  const auto [at, is_new] = running_.try_emplace(&written);
  QTimer& timer = at->second;
  if (is_new) {
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &timer,
                     [&written] { forms_layer::user::tick(written); });
  }
  timer.stop();
  if (written.Enabled() && written.Interval() > 0) timer.start(written.Interval());
}

}  // namespace desktop
