#pragma once

#include <cstdint>
#include <string>

// Numbers in texts for the user.
namespace ostrane {

// Returns the decimal digits after a sign column, which is a blank for zero and positive numbers
// and a minus sign for negative ones.
inline std::string sign_column_text(std::int64_t number) {
  return (number < 0 ? "" : " ") + std::to_string(number);
}

// Returns "1 pixel" or "2 pixels". For nouns whose plural ends in "s".
inline std::string counted(std::int64_t count, const char* noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace ostrane
