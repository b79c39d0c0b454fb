#include <iostream>

#include "desktop/system_start.h"

namespace desktop {

void prepare_start() {}

void show_start_error(const std::string& text) {
  std::cerr << "ostrane-dat-tool: " << text << '\n';
}

std::string no_display_reason(const std::string& /*text*/) {
  return "a display is needed (DISPLAY or WAYLAND_DISPLAY)";
}

}  // namespace desktop
