#pragma once

#include <cstdint>

#include "forms_layer/control.h"

namespace forms_layer {

// The screen raises Timer every `Interval` milliseconds while `Enabled`.
class timer {
 public:
  timer(form& owner_form, const char* timer_name, std::int32_t interval, bool enabled);
  timer(const timer&) = delete;
  timer& operator=(const timer&) = delete;
  ~timer() = default;

  form& owner;
  const char* const name;
  property<std::int32_t, property_id::interval, timer> Interval;
  property<bool, property_id::enabled, timer> Enabled;

  event Timer;

  void on_assigned(property_id what, bool differs);
};

}  // namespace forms_layer
