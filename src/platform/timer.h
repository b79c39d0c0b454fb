#pragma once

#include <cstdint>

#include "platform/control.h"

namespace platform {

// Raises Timer every `Interval` milliseconds while `Enabled`.
class timer {
 public:
  timer(form& owner_form, const char* timer_name, std::int32_t interval, bool enabled);
  timer(const timer&) = delete;
  timer& operator=(const timer&) = delete;
  ~timer() = default;

  form& owner;
  const char* const name;
  property<std::int32_t, aspect::interval, timer> Interval;
  property<bool, aspect::enabled, timer> Enabled;

  event Timer;

  void written(aspect what, bool differs);
};

}  // namespace platform
