#pragma once

namespace ostrane {

// While it lives one request for memory fails, the one of that number, from 1 on.
struct failing_memory {
  explicit failing_memory(long at);
  failing_memory(const failing_memory&) = delete;
  failing_memory& operator=(const failing_memory&) = delete;
  ~failing_memory();

  static bool happened();
};

}  // namespace ostrane
