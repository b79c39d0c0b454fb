#pragma once

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include "desktop/form_window.h"
#include "desktop/views.h"

namespace desktop {

// The windows of the forms: which are shown, in which order, and which gets the focus.
class window_stack {
 public:
  explicit window_stack(views& all_views) : views_(all_views) {}

  // The window of a form; null until it is shown the first time.
  form_window* window_of(const forms_layer::form& shown) const;
  // The window shown last whose form is visible, other than that of `except`; null if there is
  // none.
  form_window* topmost(const forms_layer::form* except = nullptr) const;
  // The owner of a dialog: the window that had the focus before the first box of the handler, or
  // the topmost one.
  form_window* dialog_owner() const { return before_box() == nullptr ? topmost() : before_box(); }

  // A form was shown or hidden. `sync` shows and hides the windows.
  void mark_dirty(forms_layer::form& changed) { dirty_.push_back(&changed); }
  void sync();

  // Brings the topmost window to the front, even if it is minimised.
  void bring_up_topmost();

  // Stores the window that has the focus, unless a handler has stored one before. Call before a box
  // or dialog takes it.
  void store_focus();
  // The form gets the focus at the end of the handler, by `give_focus`.
  void request_focus(forms_layer::form& to) { takes_focus_ = &to; }
  void give_focus();

 private:
  void show_window(forms_layer::form& shown);
  void hide_window(forms_layer::form& shown);
  void return_focus_after_box();
  form_window* before_box() const { return before_box_.value_or(nullptr); }

  views& views_;
  std::unordered_map<const forms_layer::form*, std::unique_ptr<form_window>> windows_;
  form_window* main_ = nullptr;          // the first one shown
  std::vector<form_window*> on_screen_;  // the latest one shown comes last
  std::vector<forms_layer::form*> dirty_;
  forms_layer::form* takes_focus_ = nullptr;
  // That had the focus before the first box of the handler, or null; none before a box.
  std::optional<form_window*> before_box_;
};

}  // namespace desktop
