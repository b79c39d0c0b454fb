#pragma once

#include "forms_layer/control.h"

namespace forms_layer {

// A control that shows a text and can be clicked.
class captioned : public control {
 public:
  property<std::string, property_id::caption, control> Caption{*this, designed.text};
  event Click;

 protected:
  using control::control;
};

class button : public captioned {
 public:
  button(container& parent_container, const design& as_designed)
      : captioned(parent_container, control_kind::button, as_designed) {}

  event ShiftClick;  // with the Shift key; null: the same as Click
};

// Text that wraps at its width. CR and CR LF both start a new line.
class label : public captioned {
 public:
  label(container& parent_container, const design& as_designed)
      : captioned(parent_container, control_kind::label, as_designed) {}
};

}  // namespace forms_layer
