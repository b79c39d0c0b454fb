#include "desktop/make_view.h"

#include "desktop/button_view.h"
#include "desktop/dir_list_view.h"
#include "desktop/drive_view.h"
#include "desktop/frame_view.h"
#include "desktop/label_view.h"
#include "desktop/multiline_text_view.h"
#include "desktop/progress_view.h"
#include "desktop/rows_view.h"
#include "desktop/text_field_view.h"

namespace desktop {

namespace {

template <typename View, typename Control>
control_view* make(forms_layer::control& shown, QWidget* parent) {
  return new View(static_cast<Control&>(shown), parent);
}

}  // namespace

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

}  // namespace desktop
