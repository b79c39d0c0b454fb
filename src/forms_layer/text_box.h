#pragma once

#include "forms_layer/control.h"

namespace forms_layer {

// A text field. `locked` and `max_length` of its design limit what the user can type, not the tool.
class text_box : public control {
 public:
  text_box(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::text_box, as_designed),
        Text(*this, as_designed.text) {}

  property<std::string, property_id::text, control> Text;
  // Shown in grey while Text is empty.
  property<std::string, property_id::text, control> Placeholder{*this, ""};
};

}  // namespace forms_layer
