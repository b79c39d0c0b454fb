#pragma once

#include <cstdint>
#include <string>

namespace ostrane {

// Returns the decimal digits after a sign column, which is a blank for zero and positive numbers
// and a minus sign for negative ones.
std::string sign_column_text(std::int64_t number);

}  // namespace ostrane
