#pragma once

#include "forms_layer/control.h"

namespace forms_layer {

// Text that wraps at its width. A carriage return alone and the pair CR LF both begin a new line.
class label : public control {
 public:
  label(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::label, as_designed),
        Caption(*this, as_designed.text) {}

  property<std::string, property_id::caption, control> Caption;

  event Click;
};

}  // namespace forms_layer
