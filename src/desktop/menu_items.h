#pragma once

#include <QMenu>
#include <QString>
#include <string>

#include "forms_layer/menu.h"

namespace desktop {

// Adds the first letter of the caption that is not in `taken` to it. Returns the caption with "&"
// before that letter.
QString take_shortcut(const std::string& caption, QString& taken);

// Adds an action for each item of `shown`, in the same order and with the same name.
void add_items(QMenu& menu, const forms_layer::menu& shown);

// The item of an action that was picked; null if `picked` is null or belongs to the screen.
forms_layer::menu_item* item_of(const QMenu& menu, const forms_layer::menu& shown, QAction* picked);

}  // namespace desktop
