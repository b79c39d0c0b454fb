#pragma once

#include <cstdint>
#include <string>

namespace ostrane {

// Returns "1 pixel" or "2 pixels". For nouns whose plural ends in "s".
inline std::string counted(std::int64_t count, const char* noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace ostrane
