#include "desktop/timers.h"

#include "forms_layer/user.h"

namespace desktop {

void timers::sync(forms_layer::timer& changed) {
  const auto [at, is_new] = running_.try_emplace(&changed);
  QTimer& timer = at->second;
  if (is_new) {
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &timer,
                     [&changed] { forms_layer::user::tick(changed); });
  }
  timer.stop();
  if (changed.Enabled() && changed.Interval() > 0) timer.start(changed.Interval());
}

}  // namespace desktop
