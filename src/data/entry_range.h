#pragma once

#include <cstdint>
#include <span>

#include "data/archive_format.h"

namespace ostrane {

// The file offset of the entry of record `index` (0-based) according to the index of the archive.
// It can be negative or after the end of the file.
std::int32_t entry_start(std::span<const dat_record> records, std::int32_t index);

// The offset after that entry. For the end record, its own offset.
std::int32_t entry_end(std::span<const dat_record> records, std::int32_t index);

// The nearest 32-bit number. Sums of offsets can exceed 32 bits.
std::int32_t clamp_to_int32(std::int64_t number);

}  // namespace ostrane
