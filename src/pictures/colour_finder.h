#pragma once

#include <unordered_map>
#include <vector>

#include "pictures/pixel_form.h"

namespace ostrane {

struct found_colour {
  std::uint8_t index = 0;
  bool is_exact = false;
};

// Finds the palette index of a colour: one with this colour, or with this colour in
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
  found_colour nearest(std::uint32_t colour) const;

  struct remembered_colour {
    std::uint32_t colour = UINT32_MAX;
    found_colour found;
  };
  rgb_palette palette_;
  std::unordered_map<std::uint32_t, std::uint8_t> exact_;
  std::vector<remembered_colour> remembered_;  // the latest colour per hash value
};

}  // namespace ostrane
