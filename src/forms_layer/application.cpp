#include "forms_layer/application.h"

#include "forms_layer/events.h"
#include "forms_layer/message_box.h"
#include "forms_layer/screen.h"
#include "forms_layer/user.h"

namespace forms_layer {

namespace {

screen none;
screen* attached = &none;
bool ended = false;

}  // namespace

application_info application;

screen& the_screen() { return *attached; }

void attach_screen(screen* shown) { attached = shown != nullptr ? shown : &none; }

void end_process() {
  ended = true;
  attached->end_process();
}

bool process_ended() { return ended; }

void begin_process() {
  ended = false;
  clear_events();
  clear_messages();
  user::clear_focus();
}

}  // namespace forms_layer
