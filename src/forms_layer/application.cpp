#include "forms_layer/application.h"

#include "forms_layer/events.h"
#include "forms_layer/file_service.h"
#include "forms_layer/message_box.h"
#include "forms_layer/screen_services.h"
#include "forms_layer/user.h"

namespace forms_layer {

namespace {

screen* attached = nullptr;
bool ended = false;

}  // namespace

application_info application;
file_service system_files;

screen* attached_screen() { return attached; }

void attach_screen(screen* shown) { attached = shown; }

void end_process() {
  ended = true;
  if (attached != nullptr) attached->end_process();
}

bool process_ended() { return ended; }

void begin_process() {
  ended = false;
  clear_events();
  clear_messages();
  answers = {};
  user::clear_focus();
}

}  // namespace forms_layer
