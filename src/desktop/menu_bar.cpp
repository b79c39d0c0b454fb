#include "desktop/menu_bar.h"

#include <QKeyEvent>
#include <QShortcut>

#include "desktop/menu_items.h"
#include "forms_layer/user.h"

namespace desktop {

menu_bar::menu_bar(const forms_layer::form& shown, QWidget* window) : QMenuBar(window) {
  setNativeMenuBar(false);
  QString taken;
  for (const forms_layer::menu* m : shown.menus) {
    QMenu* column = addMenu(take_shortcut(m->Caption, taken));
    add_items(*column, *m);
    connect(column, &QMenu::triggered, this, [column, m](QAction* picked) {
      forms_layer::user::click(*item_of(*column, *m, picked));
    });
  }
  auto* f10 = new QShortcut(QKeySequence(Qt::Key_F10), window);
  connect(f10, &QShortcut::activated, this, [this] { setActiveAction(actions().first()); });
}

// The underlined letters in the bar depend on the Alt key, which Qt watches in the window.
bool menu_bar::eventFilter(QObject* watched, QEvent* event) {
  const bool of_key =
      event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyRelease;
  if (of_key && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt) update();
  return QMenuBar::eventFilter(watched, event);
}

}  // namespace desktop
