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
  ~failing_memory() { current = nullptr; }

  bool fails(std::size_t size) {
    if (happened && !is_lasting) return false;
    if (!happened) return happened = --calls_left == 0;
    const bool fits = size <= freed;
    if (fits) freed -= size;
    return !fits;
  }

  // The memory, or null.
  static void* allocated(std::size_t size) noexcept {
    const bool fails_now = current != nullptr && current->fails(size);
    return fails_now ? nullptr : std::malloc(size > 0 ? size : 1);
  }

  static inline failing_memory* current = nullptr;
  long calls_left;  // until the failure
  const bool is_lasting;
  bool happened = false;
  std::size_t freed = 0;  // bytes since the failure
};

}  // namespace ostrane

void* operator new(std::size_t size) {
  void* const memory = ostrane::failing_memory::allocated(size);
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
  return ostrane::failing_memory::allocated(size);
}
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
  return operator new(size, tag);
}
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
