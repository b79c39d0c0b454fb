#pragma once

#include <cstdint>
#include <span>

#include "data/archive_format.h"

namespace ostrane {

// The file offset of the entry of record `index` (from 0 on), as the index of the archive claims
// it: it may be below 0 or beyond the end of the file.
std::int32_t entry_start(std::span<const dat_record> records, std::int32_t index);

// The offset just after that entry, likewise. The end record has no entry: its own offset.
std::int32_t entry_end(std::span<const dat_record> records, std::int32_t index);

// The nearest number of 32 bits; what an index claims can add up to more.
std::int32_t clamp_to_int32(std::int64_t number);

}  // namespace ostrane
