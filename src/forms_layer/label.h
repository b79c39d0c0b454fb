#pragma once

#include "forms_layer/control.h"

namespace forms_layer {

// Text that wraps at its width. CR and CR LF both start a new line.
class label : public control {
 public:
  label(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::label, as_designed),
        Caption(*this, as_designed.text) {}

  property<std::string, property_id::caption, control> Caption;

  event Click;
};

}  // namespace forms_layer
