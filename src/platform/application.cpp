#include "platform/application.h"

#include "platform/screen.h"

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

void forget_end_of_process() { ended = false; }

}  // namespace platform
