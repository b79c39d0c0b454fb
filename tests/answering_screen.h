#pragma once

#include <functional>

#include "forms_layer/screen.h"

namespace ostrane {

// A screen whose user picks an item of each menu and gives a path for each file to save.
struct answering_screen : forms_layer::screen {
  std::function<forms_layer::menu_item*(const forms_layer::context_menu& opened)> pick;
  std::function<forms_layer::save_answer(const forms_layer::save_question& question)> save;
  std::function<void(const forms_layer::picture_box& shown)> copied;

  answering_screen() { forms_layer::attach_screen(this); }
  ~answering_screen() override { forms_layer::attach_screen(nullptr); }

  forms_layer::menu_item* pick_item(forms_layer::context_menu& opened,
                                    forms_layer::screen_point) override {
    return pick(opened);
  }
  forms_layer::save_answer ask_save_path(const forms_layer::save_question& question) override {
    return save(question);
  }
  void copy_picture(const forms_layer::picture_box& shown) override { copied(shown); }
};

}  // namespace ostrane
