#pragma once

#include <QString>

#include "platform/control.h"

namespace desktop {

// What a screen reader calls a control without a caption of its own: the text of the label that
// stands beside or above it, else its tool tip, else what kind of control it is.
QString accessible_name(platform::control& shown);

}  // namespace desktop
