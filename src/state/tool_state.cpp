#include "state/tool_state.h"

#include <memory>

namespace ostrane {

tool_state_record tool_state;

void make_state_afresh() {
  std::destroy_at(&tool_state);
  std::construct_at(&tool_state);
}

}  // namespace ostrane
