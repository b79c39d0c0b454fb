#include "desktop/menu_items.h"

#include <QAction>

#include "desktop/designed_look.h"
#include "desktop/screen_text.h"

namespace desktop {

QString take_shortcut(const std::string& caption, QString& taken) {
  const QString text = to_screen(caption);
  for (qsizetype at = 0; at < text.size(); ++at) {
    const QChar letter = text[at].toUpper();
    if (!letter.isLetter() || taken.contains(letter)) continue;
    taken += letter;
    return escape_ampersands(text.left(at)) + QLatin1Char('&') + escape_ampersands(text.mid(at));
  }
  return escape_ampersands(text);
}

void add_items(QMenu& menu, const forms_layer::menu& shown) {
  // Some desktops set another font for menus.
  menu.setFont(font_for({}));
  QString taken;
  for (const forms_layer::menu_item* item : shown.items) {
    QAction* action = menu.addAction(take_shortcut(item->Caption, taken));
    action->setObjectName(QString::fromLatin1(item->name));
    action->setSeparator(item->is_separator());
    action->setEnabled(item->Enabled());
  }
}

forms_layer::menu_item* item_of(const QMenu& menu, const forms_layer::menu& shown,
                                QAction* picked) {
  const qsizetype index = menu.actions().indexOf(picked);
  const bool is_item = index >= 0 && index < static_cast<qsizetype>(shown.items.size());
  return is_item ? shown.items[static_cast<std::size_t>(index)] : nullptr;
}

}  // namespace desktop
