#pragma once

#include <cstdint>
#include <span>

#include "data/archive_format.h"

namespace ostrane {

// Returns the file offset of entry `index` (0-based) as the archive's index gives it. The offset
// may be negative or past the end of the file.
std::int32_t entry_start(std::span<const dat_record> records, std::int32_t index);

// Returns the offset after that entry, also unchecked. For the end record returns its own offset.
std::int32_t entry_end(std::span<const dat_record> records, std::int32_t index);

// Sums of the offsets in an index can exceed 32 bits.
std::int32_t clamp_to_int32(std::int64_t number);

}  // namespace ostrane
