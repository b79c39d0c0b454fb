#pragma once

namespace ostrane {

// During its lifetime one allocation fails: number `at`, 1-based.
struct failing_memory {
  explicit failing_memory(long at);
  failing_memory(const failing_memory&) = delete;
  failing_memory& operator=(const failing_memory&) = delete;
  ~failing_memory();

  static bool happened();
};

}  // namespace ostrane
