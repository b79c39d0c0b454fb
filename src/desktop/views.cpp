#include "desktop/views.h"

#include <algorithm>
#include <utility>

#include "desktop/accessible_name.h"
#include "desktop/frame_view.h"
#include "desktop/make_view.h"

namespace desktop {

namespace {

bool has_caption(const forms_layer::control& shown) {
  return shown.kind == forms_layer::control_kind::frame ||
         shown.kind == forms_layer::control_kind::label ||
         shown.kind == forms_layer::control_kind::button;
}

}  // namespace

void views::make_all(forms_layer::container& shown, surface& ground) {
  grounds_[&shown] = &ground;
  for (forms_layer::control* control : shown.controls()) {
    control_view* view = make_view(*control, &ground);
    if (view == nullptr) continue;
    all_.push_back(view);
    by_control_[control] = view;
    view->show_all();
    if (!has_caption(*control)) view->widget().setAccessibleName(accessible_name(*control));
    if (control->kind == forms_layer::control_kind::frame) {
      make_all(static_cast<forms_layer::frame&>(*control), static_cast<frame_view&>(*view));
    }
  }
}

bool views::note(forms_layer::control& written, forms_layer::property_id what) {
  if (written.kind == forms_layer::control_kind::picture_box) {
    return note_picture(static_cast<forms_layer::picture_box&>(written));
  }
  const auto at = by_control_.find(&written);
  if (at == by_control_.end() || !at->second->note(what)) return false;
  noted_.push_back(at->second);
  return true;
}

bool views::note_picture(forms_layer::picture_box& box) {
  const auto at = grounds_.find(&box.parent);
  if (at == grounds_.end() || !at->second->note(box)) return false;
  noted_grounds_.push_back(at->second);
  return true;
}

void views::catch_up() {
  for (control_view* view : std::exchange(noted_, {})) view->catch_up();
  for (surface* ground : std::exchange(noted_grounds_, {})) ground->catch_up_pictures();
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
  for (control_view* view : in_order) widgets.push_back(&view->widget());
  return widgets;
}

}  // namespace desktop
