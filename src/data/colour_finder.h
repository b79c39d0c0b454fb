#pragma once

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "data/game_palette.h"

namespace ostrane {

// The palette with a different colour for each index. The lowest of the indices with the same
// colour keeps it; the others get the nearest unused colour.
rgb_palette distinct_colours(const rgb_palette& palette);

// The lowest index of the nearest colours, other than `except`.
std::uint8_t nearest_index(const rgb_palette& palette, std::uint32_t colour,
                           std::optional<std::size_t> except = {});

struct found_colour {
  std::uint8_t index = 0;
  bool is_exact = false;
  bool is_shared = false;  // several indices have exactly this colour
};

// Finds the palette index of a colour: the lowest one with this colour, or with this colour in
// distinct_colours, or the lowest index of the nearest colours.
class colour_finder {
 public:
  explicit colour_finder(const rgb_palette& palette);

  found_colour find(std::uint32_t colour) {
    const remembered_colour& known = remembered_[colour * spread >> 16U];
    return known.colour == colour ? known.found : search(colour);
  }

  const rgb_palette& palette() const { return palette_; }

 private:
  static constexpr std::uint32_t spread = 2654435761U;  // Knuth's multiplicative hash

  found_colour search(std::uint32_t colour);

  struct remembered_colour {
    std::uint32_t colour = UINT32_MAX;
    found_colour found;
  };
  rgb_palette palette_;
  std::unordered_map<std::uint32_t, found_colour> exact_;
  std::vector<remembered_colour> remembered_;  // the latest colour per hash value
};

}  // namespace ostrane
