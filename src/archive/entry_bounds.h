#pragma once

#include <cstdint>

namespace ostrane {

// The offset of the entry of a record.
std::int32_t entry_start(std::int32_t index);

// The offset just behind the entry of a record. The end record has no entry: its own offset.
std::int32_t entry_end(std::int32_t index);

// The nearest number of 32 bits; what an index claims can add up to more.
std::int32_t in_32_bits(std::int64_t number);

}  // namespace ostrane
