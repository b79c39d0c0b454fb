#include "pictures/pixel_form.h"

#include <algorithm>
#include <array>
#include <unordered_set>

namespace ostrane {

namespace {

std::int32_t part(std::uint32_t colour, unsigned shift) {
  return static_cast<std::int32_t>(colour >> shift & 0xFFU);
}

// The nearest unused colour to `wanted`. 256 used colours fit in a cube of 7 steps.
std::uint32_t nearest_unused(std::uint32_t wanted, const std::unordered_set<std::uint32_t>& used) {
  constexpr std::int32_t reach = 8;
  std::uint32_t best = wanted;
  std::int32_t best_distance = INT32_MAX;
  const auto near = [](std::int32_t middle, std::int32_t step) {
    return static_cast<std::uint32_t>(std::clamp(middle + step, 0, 255));
  };
  for (std::int32_t r = -reach; r <= reach; ++r) {
    for (std::int32_t g = -reach; g <= reach; ++g) {
      for (std::int32_t b = -reach; b <= reach; ++b) {
        const std::uint32_t colour = near(part(wanted, 16), r) << 16U |
                                     near(part(wanted, 8), g) << 8U | near(part(wanted, 0), b);
        if (distance(colour, wanted) >= best_distance || used.contains(colour)) continue;
        best = colour;
        best_distance = distance(colour, wanted);
      }
    }
  }
  return best;
}

}  // namespace

std::int32_t distance(std::uint32_t a, std::uint32_t b) {
  std::int32_t sum = 0;
  for (const unsigned shift : {0U, 8U, 16U}) {
    const std::int32_t difference = part(a, shift) - part(b, shift);
    sum += difference * difference;
  }
  return sum;
}

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

rgb_palette distinct_colours(const rgb_palette& palette) {
  std::unordered_set<std::uint32_t> used(palette.begin(), palette.end());
  std::unordered_set<std::uint32_t> assigned;
  rgb_palette distinct = palette;
  for (std::uint32_t& colour : distinct) {
    if (assigned.insert(colour).second) continue;
    colour = nearest_unused(colour, used);
    used.insert(colour);
    assigned.insert(colour);
  }
  return distinct;
}

}  // namespace ostrane
