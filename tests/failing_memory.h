#pragma once

namespace ostrane {

// During its lifetime allocation number `at`, 1-based, fails. If it is lasting, the later ones fail
// too, unless they fit in what was freed since.
struct failing_memory {
  explicit failing_memory(long at, bool is_lasting = false);
  failing_memory(const failing_memory&) = delete;
  failing_memory& operator=(const failing_memory&) = delete;
  ~failing_memory();

  static bool happened();
};

}  // namespace ostrane
