#include "desktop/qt_screen.h"

#include <QApplication>
#include <QMetaObject>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "desktop/exposure.h"
#include "desktop/message.h"
#include "forms_layer/events.h"

namespace desktop {

qt_screen::qt_screen() { qApp->installEventFilter(&gate_); }

qt_screen::~qt_screen() = default;

void qt_screen::control_changed(forms_layer::control& changed, forms_layer::property_id what) {
  if (views_.note(changed, what)) catch_up_soon();
}

void qt_screen::form_changed(forms_layer::form& changed, forms_layer::property_id what) {
  if (what == forms_layer::property_id::focus) takes_focus_ = &changed;
  noted_forms_.push_back(&changed);
  catch_up_soon();
}

void qt_screen::menu_changed(forms_layer::form& owner, forms_layer::menu_item& changed) {
  if (form_window* window = window_of(owner)) window->show_menu_item(changed);
}

void qt_screen::timer_changed(forms_layer::timer& changed) { timers_.follow(changed); }

void qt_screen::refresh(forms_layer::form& shown) {
  catch_up();
  form_window* window = window_of(shown);
  if (window == nullptr) return;
  if (forms_layer::handler_running()) pump_window_events();
  window->paint_now();
}

void qt_screen::refresh(forms_layer::control& shown) { refresh(shown.owner_form()); }

void qt_screen::message_box(const std::string& title, const std::string& text) {
  catch_up();
  show_message(title, text, topmost(nullptr));
}

// Nothing is open and nothing is to be saved.
void qt_screen::end_process() { std::_Exit(EXIT_SUCCESS); }

form_window* qt_screen::window_of(const forms_layer::form& shown) const {
  const auto at = windows_.find(&shown);
  return at == windows_.end() ? nullptr : at->second.get();
}

void qt_screen::catch_up_soon() {
  if (std::exchange(catching_up_soon_, true)) return;
  const auto when_reached = [this] {
    catching_up_soon_ = false;
    catch_up();
  };
  QMetaObject::invokeMethod(&receiver_, when_reached, Qt::QueuedConnection);
}

void qt_screen::catch_up() {
  views_.catch_up();
  if (!noted_forms_.empty()) catch_up_forms();
  if (!forms_layer::handler_running()) give_focus();
}

// What comes is shown before what goes is hidden, so that the user never sees nothing at all.
void qt_screen::catch_up_forms() {
  const std::vector<forms_layer::form*> noted = std::exchange(noted_forms_, {});
  for (forms_layer::form* form : noted) {
    if (form->Visible()) show_window(*form);
  }
  for (forms_layer::form* form : noted) {
    if (!form->Visible()) hide_window(*form);
  }
}

void qt_screen::show_window(forms_layer::form& shown) {
  form_window& window = made_window(shown);
  window.show_caption();
  if (window.isVisible()) return;
  form_window* owner = topmost(&shown);
  if (main_ == nullptr) main_ = &window;
  on_screen_.push_back(&window);
  window.come_up(owner == nullptr ? nullptr : owner->windowHandle(), main_,
                 !forms_layer::handler_running());
}

void qt_screen::hide_window(forms_layer::form& shown) {
  form_window* window = window_of(shown);
  if (window == nullptr) return;
  window->show_caption();
  if (!window->isVisible()) return;
  const bool was_active = window->isActiveWindow();
  std::erase(on_screen_, window);
  for (form_window* other : on_screen_) {
    QWindow* handle = other->windowHandle();
    if (handle->transientParent() == window->windowHandle()) handle->setTransientParent(nullptr);
  }
  window->go_away();
  // Not every window manager hands the focus on.
  form_window* next = topmost(nullptr);
  if (was_active && next != nullptr) next->take_focus();
}

form_window& qt_screen::made_window(forms_layer::form& shown) {
  std::unique_ptr<form_window>& window = windows_[&shown];
  if (window == nullptr) {
    window = std::make_unique<form_window>(shown, views_);
    for (forms_layer::timer* timer : shown.timers) timers_.follow(*timer);
  }
  return *window;
}

// The latest window shown whose form stays, other than `but`'s.
form_window* qt_screen::topmost(const forms_layer::form* but) const {
  const auto stays = [but](const form_window* w) { return &w->form != but && w->form.Visible(); };
  const auto at = std::find_if(on_screen_.rbegin(), on_screen_.rend(), stays);
  return at == on_screen_.rend() ? nullptr : *at;
}

// Windows that came up in the middle of a handler and stay get the focus when it is done.
void qt_screen::give_focus() {
  for (form_window* window : on_screen_) {
    if (window->wants_focus()) window->take_focus();
  }
  if (takes_focus_ == nullptr) return;
  if (form_window* window = window_of(*std::exchange(takes_focus_, nullptr))) window->take_focus();
}

}  // namespace desktop
