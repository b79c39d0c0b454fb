#include "desktop/application_setup.h"

#include <QApplication>
#include <clocale>

#include "desktop/designed_look.h"
#include "desktop/desktop_style.h"

namespace desktop {

void set_up_application() {
  // Qt takes the user's locale for the whole process.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setStyle(new desktop_style);
  QApplication::setFont(font_for({}));
  QApplication::setQuitOnLastWindowClosed(false);
}

}  // namespace desktop
