#include "data/entry_range.h"

#include <algorithm>

namespace ostrane {

std::int32_t entry_start(std::span<const dat_record> records, std::int32_t index) {
  return records[static_cast<std::size_t>(index)].offset;
}

std::int32_t entry_end(std::span<const dat_record> records, std::int32_t index) {
  const auto next = static_cast<std::size_t>(index) + 1;
  return records[next < records.size() ? next : next - 1].offset;
}

std::int32_t clamp_to_int32(std::int64_t number) {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(number, INT32_MIN, INT32_MAX));
}

}  // namespace ostrane
