#pragma once

#include <cstdint>

namespace ostrane {

// The offset just behind the entry of a record. The end record has no entry: its own offset.
std::int32_t entry_end(std::int32_t index);

}  // namespace ostrane
