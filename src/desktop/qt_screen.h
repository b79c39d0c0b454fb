#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/file_drag.h"
#include "desktop/held_keys.h"
#include "desktop/input_filter.h"
#include "desktop/views.h"
#include "desktop/window_stack.h"
#include "forms_layer/screen.h"

namespace desktop {

// Shows the tool's forms with Qt. Written properties are marked dirty. They are synced at the end
// of the handler, before a message box, a menu or a dialog, and at most every 16 ms when the
// handler refreshes. A window that a handler shows is mapped at the first refresh after 100 ms, at
// a message box, or at the end of the handler if it is still visible.
class qt_screen : public forms_layer::screen {
 public:
  qt_screen();

  void control_changed(forms_layer::control& changed, forms_layer::property_id what) override;
  void form_changed(forms_layer::form& changed, forms_layer::property_id what) override;
  void menu_changed(forms_layer::form& owner, forms_layer::menu_item& changed) override;
  void timer_changed(forms_layer::timer& changed) override;
  void refresh(forms_layer::form& shown) override;
  void refresh(forms_layer::control& shown) override;
  void message_box(const std::string& title, const std::string& text) override;
  forms_layer::menu_item* pick_item(forms_layer::context_menu& opened,
                                    forms_layer::screen_point at) override;
  forms_layer::save_answer ask_save_path(const forms_layer::save_question& question) override;
  std::filesystem::path ask_folder(const std::string& title) override;
  void drag_files(const std::vector<std::filesystem::path>& names,
                  const forms_layer::file_writer& write) override;
  void copy_picture(const forms_layer::picture_box& shown) override;
  void end_process() override;

  // The window of a form; null until it is shown the first time.
  form_window* window_of(const forms_layer::form& shown) const { return windows_.window_of(shown); }

  // The clock of the frames. A test stops it.
  std::function<std::chrono::steady_clock::time_point()> now = std::chrono::steady_clock::now;

 private:
  void settle_between_handlers();
  void sync();
  void show_frame_if_due();

  std::chrono::steady_clock::time_point last_frame_;
  input_filter filter_;
  held_keys held_keys_;
  views views_;
  std::vector<std::shared_ptr<file_drag>> drags_;
  window_stack windows_{views_};
};

}  // namespace desktop
