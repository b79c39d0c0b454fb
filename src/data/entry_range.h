#pragma once

#include <algorithm>
#include <cstdint>
#include <span>

#include "data/archive_format.h"

namespace ostrane {

// The file offsets of an entry and after it, as the index gives them: they may be negative, in
// disorder or past the end of the file.
struct entry_range {
  std::int32_t start;
  std::int32_t end;

  std::int64_t size() const { return std::int64_t{end} - start; }
};

// The records of the entries: all but the end record.
inline std::span<const dat_record> entries_of(std::span<const dat_record> records) {
  return records.first(std::max<std::size_t>(records.size(), 1) - 1);
}

// The range of the entry of a 0-based index. That of the end record is empty.
inline entry_range range_of(std::span<const dat_record> records, std::int32_t index) {
  const auto at = static_cast<std::size_t>(index);
  return {records[at].offset, records[std::min(at + 1, records.size() - 1)].offset};
}

// Sums and differences of the offsets in an index can exceed 32 bits.
inline std::int32_t clamp_to_int32(std::int64_t number) {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(number, INT32_MIN, INT32_MAX));
}

inline std::int32_t size_of(const entry_range& range) { return clamp_to_int32(range.size()); }

}  // namespace ostrane
