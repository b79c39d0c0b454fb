#pragma once

#include <optional>
#include <string_view>

namespace files {

// Without the blanks (0x20 only) at both ends.
std::string_view trimmed(std::string_view text);

// The last `count` characters, or all if there are fewer.
std::string_view last_characters(std::string_view text, std::size_t count);

// The number that a text reads as: decimal digits with an optional sign, an optional point and an
// optional exponent, and nothing else around them. Infinite if it is too large for a double.
std::optional<double> as_number(std::string_view text);

}  // namespace files
