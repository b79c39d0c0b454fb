#pragma once

#include "forms_layer/control.h"

namespace forms_layer {

// Any three numbers are accepted: the bar is empty if Max <= Min, and a Value out of range is
// clamped. Each change refreshes the bar.
class progress_bar : public control {
 public:
  progress_bar(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::progress_bar, as_designed) {}

  property<float, property_id::range, control> Min{*this, 0};
  property<float, property_id::range, control> Max{*this, 100};
  property<float, property_id::range, control> Value{*this, 0};

  // The filled fraction, 0 to 1.
  double filled() const {
    const double low = Min();
    const double high = Max();
    if (high <= low) return 0;
    const double part = (Value() - low) / (high - low);
    return part < 0 ? 0 : part > 1 ? 1 : part;
  }

  void on_assigned(property_id what, bool differs) override {
    control::on_assigned(what, differs);
    if (what == property_id::range && differs) Refresh();
  }
};

}  // namespace forms_layer
