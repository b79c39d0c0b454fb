#include "desktop/menu_bar.h"

#include <QKeyEvent>
#include <QMenu>
#include <QShortcut>

#include "desktop/designed_look.h"
#include "desktop/menu_captions.h"
#include "forms_layer/user.h"

namespace desktop {

menu_bar::menu_bar(forms_layer::form& shown, QWidget* window) : QMenuBar(window) {
  setNativeMenuBar(false);
  QString taken;
  for (const forms_layer::menu* m : shown.menus) add(*m, with_shortcut(m->Caption, taken));
  auto* f10 = new QShortcut(QKeySequence(Qt::Key_F10), window);
  connect(f10, &QShortcut::activated, this, [this] { open_first(); });
}

void menu_bar::add(const forms_layer::menu& shown, const QString& caption) {
  QMenu* column = addMenu(caption);
  // Some desktops set another font for menus.
  column->setFont(font_for({}));
  QString taken;
  for (forms_layer::menu_item* item : shown.items) {
    if (item->is_separator()) {
      column->addSeparator();
      continue;
    }
    QAction* action = column->addAction(with_shortcut(item->Caption, taken));
    connect(action, &QAction::triggered, this, [item] { forms_layer::user::click(*item); });
    actions_[item] = action;
    show_item(*item);
  }
}

void menu_bar::show_item(const forms_layer::menu_item& item) {
  const auto at = actions_.find(&item);
  if (at != actions_.end()) at->second->setEnabled(item.Enabled());
}

// The underlined letters in the bar depend on the Alt key, which Qt watches in the window.
bool menu_bar::eventFilter(QObject* watched, QEvent* event) {
  const bool of_key =
      event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyRelease;
  if (of_key && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt) update();
  return QMenuBar::eventFilter(watched, event);
}

void menu_bar::open_first() {
  if (actions().isEmpty()) return;
  setFocus(Qt::MenuBarFocusReason);
  setActiveAction(actions().first());
}

}  // namespace desktop
