#include "forms_layer/form.h"

#include <utility>

#include "forms_layer/screen.h"

namespace forms_layer {

form::form(form_design as_designed)
    : designed(std::move(as_designed)),
      Caption(*this, designed.caption),
      Visible(*this, false),
      Enabled(*this, true),
      client_width_(designed.client_width),
      client_height_(designed.client_height) {}

void form::on_assigned(property_id what, bool differs) {
  if (!differs) return;
  if (what == property_id::visible && Visible()) {
    for (control* c : controls()) c->about_to_show();
    if (!std::exchange(resized_once_, true) && Resize) Resize();
  }
  the_screen().form_changed(*this, what);
}

void form::Refresh() { the_screen().refresh(*this); }

void form::SetFocus() { the_screen().form_changed(*this, property_id::focus); }

void form::set_client_size(std::int32_t width, std::int32_t height) {
  client_width_ = width;
  client_height_ = height;
}

}  // namespace forms_layer
