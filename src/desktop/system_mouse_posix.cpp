#include "desktop/system_mouse.h"

namespace desktop {

bool mouse_is_held() { return false; }

}  // namespace desktop
