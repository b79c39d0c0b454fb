#pragma once

#include <QWidget>

#include "forms_layer/form.h"

namespace desktop {

// The initial position of the client area of a form's window: centred on the screen or on `owner`
// (may be null), as designed, and completely on the screen. The window frame is assumed to be as
// thick as the owner's.
QPoint first_position(const QWidget& window, const forms_layer::form_design& designed,
                      const QWidget* owner);

}  // namespace desktop
