#pragma once

#include <QStringList>

namespace desktop {

// The system's fonts with the widths of the designed ones, best first.
QStringList proportional_fonts();
QStringList fixed_pitch_fonts();

}  // namespace desktop
