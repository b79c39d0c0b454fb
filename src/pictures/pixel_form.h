#pragma once

#include <cstdint>
#include <optional>

#include "data/game_palette.h"
#include "data/picture.h"

// How the cells of a picture become pixels of a PNG without loss: indexed with the palette, where
// one unused index means unset; or, if the picture uses all 256 indices and has unset cells, with a
// colour and an alpha value for each pixel.
namespace ostrane {

struct pixel_form {
  bool is_indexed = true;
  std::optional<std::uint8_t> unset_index;  // the lowest unused one, if there are unset cells
};

pixel_form form_of(const picture& drawn);

// The palette with a different colour for each index. The lowest of the indices with the same
// colour keeps it; the others get the nearest unused colour.
rgb_palette distinct_colours(const rgb_palette& palette);

// The squared distance of two colours.
std::int32_t distance(std::uint32_t a, std::uint32_t b);

}  // namespace ostrane
