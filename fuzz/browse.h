#pragma once

#include <cstdint>

namespace ostrane::fuzz {

// Clicks a row, and if it is an icon file looks at all its series as a user would: motion,
// stepping, reports. Draws no more than `most_series`. Gives how many it drew.
std::int32_t browse(std::int32_t row, std::int32_t most_series);

}  // namespace ostrane::fuzz
