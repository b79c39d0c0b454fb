#pragma once

namespace desktop {

// True if the system says at once that a button of the mouse is held. Qt learns nothing of it while
// a drag of Windows runs.
bool mouse_is_held();

}  // namespace desktop
