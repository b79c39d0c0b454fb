#include "desktop/system_fonts.h"

namespace desktop {

QStringList proportional_fonts() {
  return {QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"), QStringLiteral("Arial"),
          QStringLiteral("Helvetica")};
}

QStringList fixed_pitch_fonts() {
  return {QStringLiteral("Liberation Mono"), QStringLiteral("Cousine"),
          QStringLiteral("Courier New"), QStringLiteral("DejaVu Sans Mono")};
}

}  // namespace desktop
