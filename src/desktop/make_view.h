#pragma once

#include "desktop/control_view.h"

namespace desktop {

// Creates the widget for a control. Null for a picture box, which its canvas paints. The parent
// widget owns it.
control_view* make_view(forms_layer::control& shown, QWidget* parent);

}  // namespace desktop
