#pragma once

#include <malloc.h>

#include <cstdlib>
#include <new>

// Replaces the operators new and delete, so only one file may include this.
namespace ostrane {

// During its lifetime allocation number `at`, 1-based, fails. If it is lasting, the later ones fail
// too, unless they fit in what was freed since.
struct failing_memory {
  failing_memory(long at, bool lasting) : calls_left(at), is_lasting(lasting) { current = this; }
  failing_memory(const failing_memory&) = delete;
  failing_memory& operator=(const failing_memory&) = delete;
  ~failing_memory() { current = nullptr; }

  bool fails(std::size_t size) {
    if (happened && !is_lasting) return false;
    if (!happened) return happened = --calls_left == 0;
    const bool fits = size <= freed;
    if (fits) freed -= size;
    return !fits;
  }

  static inline failing_memory* current = nullptr;
  long calls_left;  // until the failure
  const bool is_lasting;
  bool happened = false;
  std::size_t freed = 0;  // bytes since the failure
};

}  // namespace ostrane

void* operator new(std::size_t size) {
  auto* const failing = ostrane::failing_memory::current;
  const bool fails = failing != nullptr && failing->fails(size);
  void* memory = fails ? nullptr : std::malloc(size > 0 ? size : 1);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept {
  auto* const failing = ostrane::failing_memory::current;
  if (failing != nullptr && failing->happened) failing->freed += malloc_usable_size(memory);
  std::free(memory);
}
// Sanitizers have their own other operators, which would not call those above.
void* operator new(std::size_t size, const std::nothrow_t& /*unused*/) noexcept {
  try {
    return operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
  return operator new(size, tag);
}
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
