#pragma once

#include <cstdint>

namespace ostrane {

// The offset of the entry of record `index` in `dat_index`, from 0 on, as the index of the archive
// claims it: it may lie before or behind the file.
std::int32_t entry_start(std::int32_t index);

// The offset just behind that entry, likewise. The end record has no entry: its own offset.
std::int32_t entry_end(std::int32_t index);

// The nearest number of 32 bits; what an index claims can add up to more.
std::int32_t in_32_bits(std::int64_t number);

}  // namespace ostrane
