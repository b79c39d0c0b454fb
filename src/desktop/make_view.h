#pragma once

#include "desktop/control_view.h"

namespace desktop {

// The widget for a control, by its kind; null for a picture box, which the canvas it stands on
// paints. The parent widget owns it.
control_view* make_view(forms_layer::control& shown, QWidget* parent);

}  // namespace desktop
