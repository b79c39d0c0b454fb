#pragma once

#include <string_view>

namespace files {

// Orders names so that "a2" comes before "a10": digits in a row are a number. Other characters
// compare by unsigned bytes.
bool natural_less(std::string_view a, std::string_view b);

}  // namespace files
