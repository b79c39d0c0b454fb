#pragma once

#include <QObject>
#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/form_window.h"
#include "desktop/input_gate.h"
#include "desktop/timers.h"
#include "desktop/views.h"
#include "platform/form.h"
#include "platform/screen.h"

namespace desktop {

// Shows the tool's forms with Qt. What the tool writes is only noted at first; it comes to the
// screen in one go when the tool asks for it, or when its handler is done.
class qt_screen : public platform::screen {
 public:
  qt_screen();
  ~qt_screen() override;

  void control_changed(platform::control& changed, platform::aspect what) override;
  void form_changed(platform::form& changed, platform::aspect what) override;
  void menu_changed(platform::form& owner, platform::menu_item& changed) override;
  void timer_changed(platform::timer& changed) override;
  void refresh(platform::form& shown) override;
  void refresh(platform::control& shown) override;
  void message_box(const std::string& title, const std::string& text) override;
  void end_process() override;

  // The window of a form; null until it is shown the first time.
  form_window* window_of(const platform::form& shown) const;

 private:
  void catch_up_soon();
  void catch_up();
  void catch_up_forms();
  void show_window(platform::form& shown);
  void hide_window(platform::form& shown);
  form_window& made_window(platform::form& shown);
  form_window* topmost(const platform::form* but) const;
  void give_focus();

  QObject receiver_;
  bool catching_up_soon_ = false;
  input_gate gate_;
  timers timers_;
  views views_;
  std::unordered_map<const platform::form*, std::unique_ptr<form_window>> windows_;
  form_window* main_ = nullptr;          // the first one shown
  std::vector<form_window*> on_screen_;  // the latest one shown comes last
  std::vector<platform::form*> noted_forms_;
  platform::form* takes_focus_ = nullptr;
};

}  // namespace desktop
