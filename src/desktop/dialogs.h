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
// null. `prepare` can change a menu before it opens.
void show_message(const std::string& title, const std::string& text, QWidget* owner);
forms_layer::menu_item* pick_item(const forms_layer::context_menu& opened,
                                  forms_layer::screen_point at, QWidget* owner,
                                  const std::function<void(QMenu&)>& prepare);
void activate_first_item(QMenu& menu);
forms_layer::save_answer ask_save_path(const forms_layer::save_question& question, QWidget* owner);
std::filesystem::path ask_folder(const std::string& title, QWidget* owner);

}  // namespace desktop
