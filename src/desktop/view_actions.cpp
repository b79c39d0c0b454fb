#include "desktop/view_actions.h"

#include "desktop/canvas.h"
#include "desktop/rows_view.h"

namespace desktop {

namespace {

template <typename View, typename Action>
void for_each(const QWidget& window, const Action& action) {
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (auto* view = dynamic_cast<View*>(widget)) action(*view);
  }
}

void act_on_list(rows_view& list, forms_layer::view_action action) {
  using forms_layer::view_action;
  find_bar* search = list.search();
  if (search == nullptr) return;
  if (action == view_action::focus_list) list.setFocus(Qt::ShortcutFocusReason);
  if (action == view_action::find) search->find_text();
  if (action == view_action::find_number) search->find_number();
  if (action == view_action::find_next) search->find_next();
  if (action == view_action::find_previous) search->find_previous();
}

}  // namespace

void act(const QWidget& window, const forms_layer::key& pressed) {
  if (pressed.action != forms_layer::view_action::none) {
    for_each<rows_view>(window, [&](rows_view& list) { act_on_list(list, pressed.action); });
  }
  for_each<canvas>(window, [&](canvas& on) { on.act(pressed); });
}

bool close_extra(const QWidget& window) {
  bool closed = false;
  for_each<rows_view>(window, [&](rows_view& list) { closed = closed || list.close_search(); });
  for_each<canvas>(window, [&](canvas& on) { closed = closed || on.end_zoom(); });
  return closed;
}

void add_view_items(const QWidget& window, const forms_layer::context_menu& opened, QMenu& menu) {
  for_each<canvas>(window, [&](canvas& on) { on.add_view_items(opened, menu); });
}

}  // namespace desktop
