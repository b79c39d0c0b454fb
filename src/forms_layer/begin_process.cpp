#include "files/case_insensitive_lookup.h"
#include "files/system_calls.h"
#include "forms_layer/application.h"
#include "forms_layer/events.h"
#include "forms_layer/message_box.h"
#include "forms_layer/user.h"

namespace forms_layer {

void begin_process() {
  files::ignore_size_limit_signal();
  reset_end_of_process();
  forget_events();
  forget_messages();
  files::forget_folders();
  user::forget_focus();
}

}  // namespace forms_layer
