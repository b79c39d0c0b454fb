#include "failing_memory.h"

#include <malloc.h>

#include <cstdlib>
#include <new>

#ifdef _WIN32
#define malloc_usable_size _msize
#endif

namespace {

long calls_until_failure = 0;  // 0: none fails
bool lasting = false;
bool failed = false;
std::size_t freed = 0;  // bytes since the failure

bool fails(std::size_t size) {
  if (failed && lasting) {
    const bool fits = size <= freed;
    if (fits) freed -= size;
    return !fits;
  }
  if (calls_until_failure == 0 || --calls_until_failure > 0) return false;
  failed = true;
  return true;
}

}  // namespace

namespace ostrane {

failing_memory::failing_memory(long at, bool is_lasting) {
  calls_until_failure = at;
  lasting = is_lasting;
  failed = false;
  freed = 0;
}
failing_memory::~failing_memory() {
  calls_until_failure = 0;
  lasting = false;
}
bool failing_memory::happened() { return failed; }

}  // namespace ostrane

void* operator new(std::size_t size) {
  void* memory = fails(size) ? nullptr : std::malloc(size > 0 ? size : 1);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
void operator delete(void* memory) noexcept {
  if (lasting && failed && memory != nullptr) freed += malloc_usable_size(memory);
  std::free(memory);
}
// Sanitizers have their own, also for arrays.
void operator delete(void* memory, std::size_t /*size*/) noexcept { operator delete(memory); }
