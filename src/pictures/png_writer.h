#pragma once

#include <string>

#include "data/game_palette.h"
#include "data/picture.h"

namespace ostrane {

// The bytes of a PNG in which each cell is `scale` pixels wide and high. pixel_form.h describes the
// pixels. Throws data_error if libpng fails.
// `distinct` are the distinct_colours of the palette.
std::string png_of(const picture& drawn, const rgb_palette& palette, const rgb_palette& distinct,
                   int scale = 1);

}  // namespace ostrane
