#include "desktop/held_keys.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

namespace desktop {

void held_keys::take_input() {
  qApp->installEventFilter(this);
  QCoreApplication::processEvents();
  qApp->removeEventFilter(this);
}

void held_keys::deliver() {
  for (held_key& held : std::exchange(keys_, {})) {
    if (held.window == nullptr || !held.window->isVisible()) continue;
    QCoreApplication::postEvent(held.window, held.event.release());
  }
}

// The window gets input first, and passes it on to its widgets. Before a key Qt asks whether it may
// look for a shortcut, which would act at once.
bool held_keys::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  if (!receiver->isWindowType()) return false;
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
    keys_.push_back({static_cast<QWindow*>(receiver), std::unique_ptr<QEvent>(event->clone())});
    return true;
  }
  return event->isInputEvent() || event->type() == QEvent::Close;
}

}  // namespace desktop
