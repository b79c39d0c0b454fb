#pragma once

#include <cstdint>
#include <optional>

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

}  // namespace ostrane
