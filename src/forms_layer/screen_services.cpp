#include "forms_layer/screen_services.h"

namespace forms_layer {

user_answers answers;

menu_item* pick_item(context_menu& opened, screen_point at) {
  if (screen* on = attached_screen()) return on->pick_item(opened, at);
  return answers.pick_item ? answers.pick_item(opened) : nullptr;
}

save_answer ask_save_path(const save_question& question) {
  if (screen* on = attached_screen()) return on->ask_save_path(question);
  return answers.save_path ? answers.save_path(question) : save_answer{};
}

void copy_picture(const picture_box& shown) {
  if (screen* on = attached_screen()) {
    on->copy_picture(shown);
  } else if (answers.copied) {
    answers.copied(shown);
  }
}

}  // namespace forms_layer
