#pragma once

#include <cstdint>
#include <string>

namespace ostrane {

// "1 byte", "2 bytes".
std::string count_text(std::int64_t count, const char* noun);

}  // namespace ostrane
