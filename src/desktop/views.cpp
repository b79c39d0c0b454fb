#include "desktop/views.h"

#include <algorithm>
#include <utility>

#include "desktop/frame_view.h"
#include "desktop/make_view.h"
#include "desktop/screen_text.h"

namespace desktop {

void views::make_all(forms_layer::container& shown, canvas& on) {
  canvases_[&shown] = &on;
  for (forms_layer::control* control : shown.controls()) {
    control_view* view = make_view(*control, &on);
    if (view == nullptr) continue;
    all_.push_back(view);
    by_control_[control] = view;
    view->widget().setObjectName(QString::fromLatin1(control->designed.name));
    if (!control->designed.spoken_name.empty()) {
      view->widget().setAccessibleName(to_screen(control->designed.spoken_name));
    }
    view->show_all();
    if (control->kind == forms_layer::control_kind::frame) {
      make_all(static_cast<forms_layer::frame&>(*control),
               static_cast<frame_view&>(*view).inside());
    }
  }
}

bool views::mark_dirty(forms_layer::control& changed, forms_layer::property_id what) {
  if (changed.kind == forms_layer::control_kind::picture_box) {
    return mark_picture_dirty(static_cast<forms_layer::picture_box&>(changed));
  }
  const auto at = by_control_.find(&changed);
  if (at == by_control_.end() || !at->second->mark_dirty(what)) return false;
  dirty_.push_back(at->second);
  return true;
}

bool views::mark_picture_dirty(forms_layer::picture_box& box) {
  const auto at = canvases_.find(&box.parent);
  if (at == canvases_.end() || !at->second->mark_dirty(box)) return false;
  dirty_canvases_.push_back(at->second);
  return true;
}

void views::sync() {
  for (control_view* view : std::exchange(dirty_, {})) view->sync();
  for (canvas* dirty : std::exchange(dirty_canvases_, {})) dirty->sync_pictures();
}

void views::show_all() {
  for (control_view* view : all_) view->show_all();
}

std::vector<QWidget*> views::in_tab_order(const forms_layer::form& shown) const {
  std::vector<control_view*> in_order;
  for (control_view* view : all_) {
    if (&view->control.owner_form() == &shown) in_order.push_back(view);
  }
  std::stable_sort(in_order.begin(), in_order.end(), [](control_view* a, control_view* b) {
    return a->control.designed.tab_index < b->control.designed.tab_index;
  });
  std::vector<QWidget*> widgets;
  widgets.reserve(in_order.size());
  for (control_view* view : in_order) widgets.push_back(&view->focus_widget());
  return widgets;
}

}  // namespace desktop
