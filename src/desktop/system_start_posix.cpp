#include <clocale>
#include <cstdlib>
#include <iostream>

#include "desktop/system_start.h"

namespace desktop {

void prepare_start() {}

// The texts of the tool are English, also those that the system adds.
void restore_locale() {
  std::setlocale(LC_NUMERIC, "C");
  std::setlocale(LC_MESSAGES, "C");
}

void show_start_error(const std::string& text) {
  std::cerr << "ostrane-dat-tool: " << text << '\n';
}

std::string no_display_reason(const std::string& text) {
  if (std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr) return text;
  return "a display is needed (DISPLAY or WAYLAND_DISPLAY)";
}

}  // namespace desktop
