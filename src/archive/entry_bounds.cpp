#include "archive/entry_bounds.h"

#include "state/tool_state.h"

namespace ostrane {

std::int32_t entry_end(std::int32_t index) {
  const std::int32_t next = index + 1 < tool_state.record_count ? index + 1 : index;
  return tool_state.dat_index[static_cast<std::size_t>(next)].offset;
}

}  // namespace ostrane
