#pragma once

#include <cstdint>
#include <string>

namespace ostrane {

// A sign column and decimal digits: a blank for zero and positive numbers, a minus sign for
// negative ones.
std::string sign_column_text(std::int64_t number);

}  // namespace ostrane
