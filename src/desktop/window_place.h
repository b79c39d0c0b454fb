#pragma once

#include <QWidget>

#include "desktop/form_window.h"

namespace desktop {

// The top left corner at which a window opens the first time: in the middle of the screen or of
// `owner`, as designed, and wholly on the screen.
QPoint first_place(const form_window& window, const QWidget* owner);

}  // namespace desktop
