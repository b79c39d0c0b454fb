#pragma once

#include <cstdint>
#include <optional>

#include "data/game_palette.h"
#include "data/picture.h"

// How the cells of a picture become pixels of a PNG, of which none is lost: indexed with the
// palette, where one index that the picture does not use stands for unset cells; or, if it uses all
// 256 and has unset cells too, with a colour and an alpha value for each pixel.
namespace ostrane {

struct pixel_form {
  bool is_indexed = true;
  std::optional<std::uint8_t> unset_index;  // the lowest that is free, if there are unset cells
};

pixel_form form_of(const picture& drawn);

// The palette with a colour of its own for each index. Of indices with one colour the lowest keeps
// it; the others get the nearest colour that is in no other place.
colour_table distinct_colours(const colour_table& palette);

// The squared distance of two colours.
std::int32_t distance(std::uint32_t a, std::uint32_t b);

}  // namespace ostrane
