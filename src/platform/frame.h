#pragma once

#include "platform/container.h"
#include "platform/control.h"

namespace platform {

// A captioned box with controls in it.
class frame : public control, public container {
 public:
  frame(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::frame, as_designed),
        Caption(*this, as_designed.text) {}

  property<std::string, aspect::caption, control> Caption;

  form& containing_form() override { return owner_form(); }
  control* as_control() override { return this; }
};

}  // namespace platform
