#include "archive/entry_bounds.h"

#include <algorithm>

#include "state/tool_state.h"

namespace ostrane {

std::int32_t entry_start(std::int32_t index) {
  return tool_state.dat_index[static_cast<std::size_t>(index)].offset;
}

std::int32_t entry_end(std::int32_t index) {
  return entry_start(index + 1 < tool_state.record_count ? index + 1 : index);
}

std::int32_t in_32_bits(std::int64_t number) {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(number, INT32_MIN, INT32_MAX));
}

}  // namespace ostrane
