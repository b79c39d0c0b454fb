#include "data/count_text.h"

namespace ostrane {

std::string count_text(std::int64_t count, const char* noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace ostrane
