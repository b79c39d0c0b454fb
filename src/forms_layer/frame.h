#pragma once

#include "forms_layer/container.h"
#include "forms_layer/control.h"

namespace forms_layer {

// A box with a caption that contains controls.
class frame : public control, public container {
 public:
  frame(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::frame, as_designed),
        Caption(*this, as_designed.text) {}

  property<std::string, property_id::caption, control> Caption;

  form& containing_form() override { return owner_form(); }
  control* as_control() override { return this; }
};

}  // namespace forms_layer
