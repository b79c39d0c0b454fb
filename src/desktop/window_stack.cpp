#include "desktop/window_stack.h"

#include <QApplication>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace desktop {

form_window* window_stack::window_of(const forms_layer::form& shown) const {
  const auto at = windows_.find(&shown);
  return at == windows_.end() ? nullptr : at->second.get();
}

form_window* window_stack::topmost(const forms_layer::form* except) const {
  const auto stays = [except](const form_window* w) {
    return &w->form != except && w->form.Visible();
  };
  const auto at = std::find_if(on_screen_.rbegin(), on_screen_.rend(), stays);
  return at == on_screen_.rend() ? nullptr : *at;
}

// Show new windows before hiding old ones, so that the screen is never empty.
void window_stack::sync() {
  const std::vector<forms_layer::form*> dirty = dirty_;
  for (forms_layer::form* form : dirty) {
    if (form->Visible()) show_window(*form);
  }
  for (forms_layer::form* form : dirty) {
    if (!form->Visible()) hide_window(*form);
  }
  // If memory runs out before, the next sync shows and hides them.
  dirty_.erase(dirty_.begin(), dirty_.begin() + std::min(std::ssize(dirty), std::ssize(dirty_)));
}

void window_stack::show_window(forms_layer::form& shown) {
  std::unique_ptr<form_window>& made = windows_[&shown];
  if (made == nullptr) {
    made = std::make_unique<form_window>(shown, views_);
    made->grab();  // loads the fonts, so that the first frame follows the window at once
  }
  form_window& window = *made;
  if (window.isVisible()) return;
  form_window* owner = topmost(&shown);
  if (main_ == nullptr) main_ = &window;
  on_screen_.push_back(&window);
  window.show_over(owner == nullptr ? nullptr : owner->windowHandle(), main_);
}

void window_stack::hide_window(forms_layer::form& shown) {
  form_window* window = window_of(shown);
  if (window == nullptr || !window->isVisible()) return;
  const bool was_active = window->isActiveWindow();
  std::erase(on_screen_, window);
  for (form_window* other : on_screen_) {
    QWindow* handle = other->windowHandle();
    if (handle->transientParent() == window->windowHandle()) handle->setTransientParent(nullptr);
  }
  window->hide_window();
  // Not all window managers pass on the focus.
  form_window* next = topmost();
  if (was_active && next != nullptr) next->take_focus();
}

void window_stack::bring_up_topmost() {
  form_window* window = topmost();
  if (window == nullptr) return;
  if (window->isMinimized()) window->showNormal();
  window->take_focus();
}

void window_stack::store_focus() {
  if (before_box() != nullptr) return;
  before_box_ = dynamic_cast<form_window*>(QApplication::activeWindow());
}

// The window manager may have given it to a window that is hidden now, to the report, which owns
// the box while it is shown, or to none.
void window_stack::return_focus_after_box() {
  if (!before_box_.has_value()) return;
  form_window* to = *std::exchange(before_box_, std::nullopt);
  if (to == nullptr || !to->form.Visible() || !to->form.Enabled()) to = topmost();
  if (to != nullptr) to->take_focus();
}

// Windows that were shown during a handler and are still visible get the focus at its end.
void window_stack::give_focus() {
  return_focus_after_box();
  for (form_window* window : on_screen_) {
    if (window->wants_focus()) window->take_focus();
  }
  if (takes_focus_ == nullptr) return;
  if (form_window* window = window_of(*std::exchange(takes_focus_, nullptr))) window->take_focus();
}

}  // namespace desktop
