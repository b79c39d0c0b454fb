#pragma once

#include <QAction>
#include <QMenuBar>
#include <unordered_map>

#include "forms_layer/form.h"

namespace desktop {

// The menus of a form. The shortcut of a caption is its first letter that no earlier caption uses:
// with Alt in the bar, alone in an open menu. F10 opens the first menu.
class menu_bar : public QMenuBar {
 public:
  menu_bar(forms_layer::form& shown, QWidget* window);

  void show_item(const forms_layer::menu_item& item);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void add(const forms_layer::menu& shown, const QString& caption);
  void open_first();

  std::unordered_map<const forms_layer::menu_item*, QAction*> actions_;
};

}  // namespace desktop
