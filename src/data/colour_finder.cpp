#include "data/colour_finder.h"

#include <algorithm>
#include <unordered_set>

namespace ostrane {

namespace {

constexpr std::size_t max_remembered = 65536;

std::int32_t part(std::uint32_t colour, unsigned shift) {
  return static_cast<std::int32_t>(colour >> shift & 0xFFU);
}

// The squared distance of two colours.
std::int32_t distance(std::uint32_t a, std::uint32_t b) {
  std::int32_t sum = 0;
  for (const unsigned shift : {0U, 8U, 16U}) {
    const std::int32_t difference = part(a, shift) - part(b, shift);
    sum += difference * difference;
  }
  return sum;
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

std::uint8_t nearest_index(const rgb_palette& palette, std::uint32_t colour,
                           std::optional<std::size_t> except) {
  std::size_t best = except == 0U ? 1 : 0;
  for (std::size_t i = best + 1; i < palette.size(); ++i) {
    if (i != except && distance(palette[i], colour) < distance(palette[best], colour)) best = i;
  }
  return static_cast<std::uint8_t>(best);
}

colour_finder::colour_finder(const rgb_palette& palette)
    : palette_(palette), remembered_(max_remembered) {
  const rgb_palette distinct = distinct_colours(palette_);
  for (std::size_t i = 0; i < palette_.size(); ++i) {
    const found_colour found = {static_cast<std::uint8_t>(i), true};
    const auto [known, is_new] = exact_.emplace(palette_[i], found);
    if (!is_new) known->second.is_shared = true;
  }
  for (std::size_t i = 0; i < distinct.size(); ++i) {
    exact_.emplace(distinct[i], found_colour{static_cast<std::uint8_t>(i), true});
  }
}

found_colour colour_finder::search(std::uint32_t colour) {
  remembered_colour& known = remembered_[colour * spread >> 16U];
  known.colour = colour;
  const auto exact = exact_.find(colour);
  known.found =
      exact == exact_.end() ? found_colour{nearest_index(palette_, colour), false} : exact->second;
  return known.found;
}

}  // namespace ostrane
