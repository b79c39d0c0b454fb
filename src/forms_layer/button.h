#pragma once

#include "forms_layer/control.h"

namespace forms_layer {

class button : public control {
 public:
  button(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::button, as_designed),
        Caption(*this, as_designed.text) {}

  property<std::string, property_id::caption, control> Caption;

  event Click;
};

}  // namespace forms_layer
