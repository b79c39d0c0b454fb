#pragma once

#include <QAction>
#include <QMenuBar>
#include <unordered_map>

#include "forms_layer/form.h"

namespace desktop {

// The menus of a form. The first letter of a caption that no caption before it has taken is its
// shortcut, with Alt in the bar and alone in an open menu, where it is underlined; F10 opens the
// first menu.
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
