#pragma once

#include <QMenu>
#include <QWidget>
#include <functional>

#include "forms_layer/screen.h"

namespace desktop {

inline forms_layer::screen_point as_screen_point(const QPoint& point) {
  return {static_cast<std::int16_t>(point.x()), static_cast<std::int16_t>(point.y())};
}

// The boxes, menus and dialogs of forms_layer::screen, over `owner`. That of the message box may be
// null. `add_more` adds actions of the screen to a menu. In a menu that is opened by key the first
// enabled item is active.
void show_message(const std::string& title, const std::string& text, QWidget* owner);
forms_layer::menu_item* pick_item(const forms_layer::context_menu& opened,
                                  forms_layer::screen_point at, bool by_key, QWidget* owner,
                                  const std::function<void(QMenu&)>& add_more);
forms_layer::save_answer ask_save_path(const forms_layer::save_question& question, QWidget* owner);
std::filesystem::path ask_folder(const std::string& title, QWidget* owner);

}  // namespace desktop
