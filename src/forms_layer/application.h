#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

namespace forms_layer {

// Facts about the running program, for the forms.
struct application_info {
  std::string Title;           // title of message boxes
  std::filesystem::path Path;  // folder of the program file
  // Called after a handler threw std::bad_alloc. Restores usable windows.
  std::function<void()> OutOfMemory;
  // Of device-independent pixels.
  static constexpr std::int32_t TwipsPerPixelX = 15;
  static constexpr std::int32_t TwipsPerPixelY = 15;
};

extern application_info application;

// Ends the process. Without a screen it only sets `process_ended`, and no event runs until
// `begin_process`.
void end_process();
bool process_ended();

// Resets this folder's global state to that of a new process: no event, focus or recorded message.
void begin_process();

}  // namespace forms_layer
