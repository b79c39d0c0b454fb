#pragma once

#include <QString>

#include "forms_layer/control.h"

namespace desktop {

// What a screen reader calls a control without a caption of its own: the text of the label that
// stands beside or above it, else its tool tip, else what kind of control it is.
QString accessible_name(forms_layer::control& shown);

}  // namespace desktop
