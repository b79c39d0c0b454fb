#pragma once

#include <cstddef>

namespace ostrane {

// During its lifetime allocation number `at`, 1-based, fails. If it is lasting, the later ones fail
// too, unless they fit in what was freed since.
struct failing_memory {
  failing_memory(long at, bool lasting);
  failing_memory(const failing_memory&) = delete;
  failing_memory& operator=(const failing_memory&) = delete;
  ~failing_memory();

  long calls_left;  // until the failure
  const bool is_lasting;
  bool happened = false;
  std::size_t freed = 0;  // bytes since the failure
};

}  // namespace ostrane
