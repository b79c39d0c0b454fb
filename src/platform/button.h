#pragma once

#include "platform/control.h"

namespace platform {

class button : public control {
 public:
  button(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::button, as_designed),
        Caption(*this, as_designed.text) {}

  property<std::string, aspect::caption, control> Caption;

  event Click;
};

}  // namespace platform
