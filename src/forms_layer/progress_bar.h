#pragma once

#include "forms_layer/control.h"

namespace forms_layer {

// A bar that is filled from Min to Value. Any three numbers are accepted: with Max at or below Min
// the bar is empty, and a Value outside the range shows as the nearer end.
class progress_bar : public control {
 public:
  progress_bar(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::progress_bar, as_designed) {}

  property<float, property_id::range, control> Min{*this, 0};
  property<float, property_id::range, control> Max{*this, 100};
  property<float, property_id::range, control> Value{*this, 0};

  // The filled part, 0 to 1.
  double filled() const {
    const double low = Min();
    const double high = Max();
    if (high <= low) return 0;
    const double part = (Value() - low) / (high - low);
    return part < 0 ? 0 : part > 1 ? 1 : part;
  }

  void written(property_id what, bool differs) override {
    control::written(what, differs);
    if (what == property_id::range && differs) Refresh();
  }
};

}  // namespace forms_layer
