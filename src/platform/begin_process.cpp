#include "platform/application.h"
#include "platform/case_blind.h"
#include "platform/events.h"
#include "platform/message_box.h"
#include "platform/system_calls.h"
#include "platform/user.h"

namespace platform {

void begin_process() {
  ignore_size_limit_signal();
  forget_end_of_process();
  forget_events();
  forget_messages();
  forget_folders();
  user::forget_focus();
}

}  // namespace platform
