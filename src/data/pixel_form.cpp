#include "data/pixel_form.h"

#include <algorithm>
#include <array>

namespace ostrane {

pixel_form form_of(const picture& drawn) {
  std::array<bool, 257> is_used = {};  // [0] for unset cells
  for (int row = 0; row < drawn.rows(); ++row) {
    for (const std::int16_t cell : drawn.row(row)) {
      is_used[static_cast<std::size_t>(cell + 1)] = true;
    }
  }
  if (!is_used[0]) return {};
  const auto free = std::find(is_used.begin() + 1, is_used.end(), false);
  if (free == is_used.end()) return {.is_indexed = false, .unset_index = {}};
  return {.is_indexed = true, .unset_index = static_cast<std::uint8_t>(free - is_used.begin() - 1)};
}

}  // namespace ostrane
