#include "platform/timer.h"

#include "platform/form.h"
#include "platform/screen.h"

namespace platform {

timer::timer(form& owner_form, const char* timer_name, std::int32_t interval, bool enabled)
    : owner(owner_form), name(timer_name), Interval(*this, interval), Enabled(*this, enabled) {
  owner.timers.push_back(this);
}

void timer::written(aspect /*what*/, bool /*differs*/) {
  if (screen* on = attached_screen()) on->timer_changed(*this);
}

}  // namespace platform
