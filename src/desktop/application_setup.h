#pragma once

namespace desktop {

// To be called once, right after the QApplication is made. Sets the look of the tool and numbers
// without the user's locale; the process does not quit when its last window closes.
void set_up_application();

}  // namespace desktop
