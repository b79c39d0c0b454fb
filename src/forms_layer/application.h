#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace forms_layer {

// The running program as the forms see it.
struct application_facts {
  std::string Title;           // title of all message boxes
  std::filesystem::path Path;  // folder of the running program
  // Memory for a handler's work could not be had. Brings the windows back to a usable state.
  std::function<void()> OutOfMemory;
  // A pixel is a device-independent one, whatever the screen.
  static constexpr std::int32_t TwipsPerPixelX = 15;
  static constexpr std::int32_t TwipsPerPixelY = 15;
};

extern application_facts application;

// Ends the process at once. Without a screen `process_ended` becomes true and no event runs any
// more until `reset_end_of_process`.
void end_process();
bool process_ended();
void reset_end_of_process();

// The state of a new process: nothing waits or has the focus, and no message was shown.
void begin_process();

}  // namespace forms_layer
