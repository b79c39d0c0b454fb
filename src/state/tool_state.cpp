#include "state/tool_state.h"

#include <memory>
#include <utility>

namespace ostrane {

tool_state_record tool_state;

void reset_state() {
  // The first time it is as constructed: writing its large arrays again would take time at start.
  static bool was_used = false;
  if (!std::exchange(was_used, true)) return;
  std::destroy_at(&tool_state);
  std::construct_at(&tool_state);
}

}  // namespace ostrane
