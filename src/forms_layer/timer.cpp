#include "forms_layer/timer.h"

#include "forms_layer/form.h"
#include "forms_layer/screen.h"

namespace forms_layer {

timer::timer(form& owner_form, const char* timer_name, std::int32_t interval, bool enabled)
    : owner(owner_form), name(timer_name), Interval(*this, interval), Enabled(*this, enabled) {
  owner.timers.push_back(this);
}

// Setting a property to its old value restarts the timer, too.
void timer::on_assigned(property_id /*what*/, bool /*differs*/) {
  the_screen().timer_changed(*this);
}

}  // namespace forms_layer
