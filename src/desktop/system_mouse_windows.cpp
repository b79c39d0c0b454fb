#include <windows.h>

#include "desktop/system_mouse.h"

namespace desktop {

// Either button can be the main one.
bool mouse_is_held() {
  return GetAsyncKeyState(VK_LBUTTON) < 0 || GetAsyncKeyState(VK_RBUTTON) < 0;
}

}  // namespace desktop
