#include "platform/application.h"

#include "platform/case_blind.h"
#include "platform/events.h"
#include "platform/message_box.h"
#include "platform/screen.h"
#include "platform/user.h"

namespace platform {

namespace {

screen* attached = nullptr;
bool ended = false;

}  // namespace

application_facts application;

screen* attached_screen() { return attached; }

void attach_screen(screen* shown) { attached = shown; }

void end_process() {
  ended = true;
  if (attached != nullptr) attached->end_process();
}

bool process_ended() { return ended; }

void begin_process() {
  ended = false;
  forget_events();
  forget_messages();
  forget_folders();
  user::forget_focus();
}

}  // namespace platform
