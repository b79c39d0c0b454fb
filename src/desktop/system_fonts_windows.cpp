#include "desktop/system_fonts.h"

namespace desktop {

// The letters of the designed font, MS Sans Serif, exist in a few sizes only. Microsoft Sans Serif
// has their widths in every size.
QStringList proportional_fonts() {
  return {QStringLiteral("Microsoft Sans Serif"), QStringLiteral("MS Sans Serif"),
          QStringLiteral("Arial"), QStringLiteral("Liberation Sans")};
}

QStringList fixed_pitch_fonts() {
  return {QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
          QStringLiteral("Lucida Console")};
}

}  // namespace desktop
