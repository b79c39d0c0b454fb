#pragma once

#include <QMenuBar>

#include "forms_layer/form.h"

namespace desktop {

// The menus of a form, at least one. The shortcut of a caption is its first letter that no earlier
// caption uses: with Alt in the bar, alone in an open menu. F10 opens the first menu.
class menu_bar : public QMenuBar {
 public:
  menu_bar(const forms_layer::form& shown, QWidget* window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace desktop
