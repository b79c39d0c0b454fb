#include "forms_layer/application.h"
#include "forms_layer/events.h"
#include "forms_layer/message_box.h"
#include "forms_layer/screen_services.h"
#include "forms_layer/user.h"

namespace forms_layer {

void begin_process() {
  reset_end_of_process();
  clear_events();
  clear_messages();
  answers = {};
  user::clear_focus();
}

}  // namespace forms_layer
