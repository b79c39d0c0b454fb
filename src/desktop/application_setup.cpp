#include "desktop/application_setup.h"

#include <new>

#include "desktop/accessible_canvas.h"
#include "desktop/designed_look.h"
#include "desktop/desktop_style.h"
#include "desktop/system_start.h"

namespace desktop {

bool application::notify(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) ++mouse_releases_;
  try {
    if (event->type() == QEvent::KeyPress) {
      auto& press = *static_cast<QKeyEvent*>(event);
      press.spontaneous() ? key_times_.note(*receiver, press) : key_times_.restore(press);
    }
    return QApplication::notify(receiver, event);
  } catch (const std::bad_alloc&) {
    return false;
  }
}

void set_up_application() {
  restore_locale();
  QApplication::setStyle(new desktop_style);
  QApplication::setFont(font_for({}));
  QApplication::setQuitOnLastWindowClosed(false);
  install_accessible_canvases();
}

}  // namespace desktop
