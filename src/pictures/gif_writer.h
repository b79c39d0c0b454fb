#pragma once

#include <string>
#include <vector>

#include "data/game_palette.h"
#include "data/picture.h"

namespace ostrane {

// The bytes of a GIF that shows the pictures once in order, each for `pace` hundredths
// of a second. Each cell is `scale` pixels wide and high. A picture that uses all 256 indices and
// has unset cells loses its rarest index to the nearest colour; `inexact` counts these cells.
// Throws data_error if a side would be longer than 65535 pixels, or if giflib fails.
std::string gif_of(const std::vector<picture>& pictures, const rgb_palette& palette, int pace,
                   int scale, std::int64_t& inexact);

}  // namespace ostrane
