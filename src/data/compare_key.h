#pragma once

#include <string>
#include <string_view>

namespace ostrane {

// What names in lists are compared by: trimmed and in upper case, by the values of the characters.
std::string compare_key(std::string_view name);

}  // namespace ostrane
