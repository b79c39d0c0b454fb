#pragma once

#include <QWidget>

#include "forms_layer/form.h"

namespace desktop {

// The top left corner of the client area of a form's window that opens the first time: in the
// middle of the screen or of `owner` (may be null), as designed, and wholly on the screen. The
// frame is taken to be as thick as the owner's, which the window manager has told.
QPoint first_position(const QWidget& window, const forms_layer::form_design& designed,
                      const QWidget* owner);

}  // namespace desktop
