#include "desktop/application_setup.h"

#include <QTimer>
#include <QWindow>
#include <clocale>
#include <new>

#include "desktop/accessible_canvas.h"
#include "desktop/designed_look.h"
#include "desktop/desktop_style.h"
#include "desktop/form_window.h"

namespace desktop {

namespace {

// Wayland gives the focus also to a window that a dialog blocks, which then drops all keys. When it
// gets the focus, Qt asks for it once more, which must not come last.
void pass_focus_to_dialog(const QWindow* focused) {
  QWidget* dialog = QApplication::activeModalWidget();
  if (dialog == nullptr || focused == nullptr) return;
  if (dynamic_cast<const form_window*>(QWidget::find(focused->winId())) == nullptr) return;
  QTimer::singleShot(0, dialog, [dialog] { dialog->activateWindow(); });
}

}  // namespace

bool application::notify(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::MouseButtonRelease) ++mouse_releases_;
  try {
    if (event->type() == QEvent::KeyPress) {
      key_times_.restore(*receiver, *static_cast<QKeyEvent*>(event));
    }
    return QApplication::notify(receiver, event);
  } catch (const std::bad_alloc&) {
    return false;
  }
}

void set_up_application() {
  // Qt sets the user's locale for the whole process.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setStyle(new desktop_style);
  QApplication::setFont(font_for({}));
  QApplication::setQuitOnLastWindowClosed(false);
  install_accessible_canvases();
  QObject::connect(qApp, &QGuiApplication::focusWindowChanged, qApp, pass_focus_to_dialog);
}

}  // namespace desktop
