#include "forms_layer/application.h"

#include "forms_layer/file_service.h"
#include "forms_layer/screen.h"

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

void reset_end_of_process() { ended = false; }

}  // namespace forms_layer
