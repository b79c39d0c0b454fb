#pragma once

namespace desktop {

// To be called once, right after the QApplication is made: the look of the tool, numbers in their
// own form whatever the user's locale, and a life that does not end with a window that closes.
void set_up_application();

}  // namespace desktop
