#include "failing_memory.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

using ostrane::failing_memory;

static failing_memory* current = nullptr;

failing_memory::failing_memory(long at, bool lasting) : calls_left(at), is_lasting(lasting) {
  current = this;
}
failing_memory::~failing_memory() { current = nullptr; }

static bool fails(std::size_t size) {
  if (current == nullptr || (current->happened && !current->is_lasting)) return false;
  if (!current->happened) return current->happened = --current->calls_left == 0;
  const bool fits = size <= current->freed;
  if (fits) current->freed -= size;
  return !fits;
}

void* operator new(std::size_t size) {
  void* memory = fails(size) ? nullptr : std::malloc(size > 0 ? size : 1);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept {
  const bool counts = current != nullptr && current->happened && memory != nullptr;
  if (counts) current->freed += malloc_usable_size(memory);
  std::free(memory);
}
// Sanitizers have their own operators for arrays, which would not call those above.
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new[](std::size_t size, const std::nothrow_t& /*unused*/) noexcept {
  try {
    return operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
