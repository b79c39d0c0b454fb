#pragma once

#include <QWidget>

#include "forms_layer/form.h"

namespace desktop {

// The top left corner at which the window of a form opens the first time: in the middle of the
// screen or of `owner` (may be null), as designed, and wholly on the screen.
QPoint first_place(const QWidget& window, const forms_layer::form_design& designed,
                   const QWidget* owner);

}  // namespace desktop
