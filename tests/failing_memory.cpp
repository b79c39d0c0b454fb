#include "failing_memory.h"

#include <cstdlib>
#include <new>

namespace {

long calls_until_failure = 0;  // 0 or less: none fails

}  // namespace

namespace ostrane {

failing_memory::failing_memory(long at) { calls_until_failure = at; }
failing_memory::~failing_memory() { calls_until_failure = 0; }
bool failing_memory::happened() { return calls_until_failure <= 0; }

}  // namespace ostrane

void* operator new(std::size_t size) {
  const bool fails = calls_until_failure > 0 && --calls_until_failure == 0;
  void* memory = fails ? nullptr : std::malloc(size > 0 ? size : 1);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
