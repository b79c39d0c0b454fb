#pragma once

#include <functional>

#include "forms_layer/screen.h"

namespace forms_layer {

// Each calls the function of its name on the attached screen, or without a screen in `answers`.
menu_item* pick_item(context_menu& opened, screen_point at);
save_answer ask_save_path(const save_question& question);
void copy_picture(const picture_box& shown);

// What the user answers without a screen. A null function picks nothing and gives no path.
struct user_answers {
  std::function<menu_item*(context_menu& opened)> pick_item;
  std::function<save_answer(const save_question& question)> save_path;
  std::function<void(const picture_box& shown)> copied;
};
extern user_answers answers;

}  // namespace forms_layer
