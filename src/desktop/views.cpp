#include "desktop/views.h"

#include <utility>

#include "desktop/button_view.h"
#include "desktop/dir_list_view.h"
#include "desktop/drive_view.h"
#include "desktop/frame_view.h"
#include "desktop/label_view.h"
#include "desktop/multiline_text_view.h"
#include "desktop/progress_view.h"
#include "desktop/rows_view.h"
#include "desktop/screen_text.h"
#include "desktop/text_field_view.h"

namespace desktop {

namespace {

template <typename View, typename Control>
control_view* make(forms_layer::control& shown, QWidget* parent) {
  return new View(static_cast<Control&>(shown), parent);
}

// Creates the widget for a control. Null for a picture box, which its canvas paints. The parent
// widget owns it.
control_view* make_view(forms_layer::control& shown, QWidget* parent) {
  using forms_layer::control_kind;
  switch (shown.kind) {
    case control_kind::frame:
      return make<frame_view, forms_layer::frame>(shown, parent);
    case control_kind::label:
      return make<label_view, forms_layer::label>(shown, parent);
    case control_kind::button:
      return make<button_view, forms_layer::button>(shown, parent);
    case control_kind::text_box:
      return shown.designed.multi_line
                 ? make<multiline_text_view, forms_layer::text_box>(shown, parent)
                 : make<text_field_view, forms_layer::text_box>(shown, parent);
    case control_kind::list_box:
    case control_kind::file_list:
      return make<rows_view, forms_layer::row_list>(shown, parent);
    case control_kind::progress_bar:
      return make<progress_view, forms_layer::progress_bar>(shown, parent);
    case control_kind::drive_list:
      return make<drive_view, forms_layer::drive_list>(shown, parent);
    case control_kind::dir_list:
      return make<dir_list_view, forms_layer::dir_list>(shown, parent);
    case control_kind::picture_box:
      break;
  }
  return nullptr;
}

}  // namespace

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

// A change that cannot be recorded, as memory ran out, is shown by the next sync.
void views::mark_dirty(forms_layer::control& changed, forms_layer::property_id what) {
  const bool failed = std::exchange(failed_, true);
  if (changed.kind == forms_layer::control_kind::picture_box) {
    if (const auto at = canvases_.find(&changed.parent); at != canvases_.end()) {
      if (!at->second->is_dirty()) dirty_canvases_.push_back(at->second);
      at->second->mark_dirty(static_cast<forms_layer::picture_box&>(changed));
    }
  } else if (const auto at = by_control_.find(&changed); at != by_control_.end()) {
    if (!at->second->is_dirty()) dirty_.push_back(at->second);
    at->second->mark_dirty(what);
  }
  failed_ = failed;
}

// A lack of memory loses the lists of the dirty ones, so the next sync shows all.
void views::sync() {
  if (std::exchange(failed_, true)) show_all();
  for (control_view* view : std::exchange(dirty_, {})) view->sync();
  for (canvas* dirty : std::exchange(dirty_canvases_, {})) dirty->sync_pictures();
  failed_ = false;
}

void views::show_all() {
  for (control_view* view : all_) view->show_all();
  for (const auto& [shown, on] : canvases_) on->show_all();
}

std::multimap<int, QWidget*> views::in_tab_order(const forms_layer::form& shown) const {
  std::multimap<int, QWidget*> widgets;
  for (control_view* view : all_) {
    if (&view->control.owner_form() != &shown) continue;
    widgets.emplace(view->control.designed.tab_index, &view->focus_widget());
  }
  return widgets;
}

}  // namespace desktop
