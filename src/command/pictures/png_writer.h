#pragma once

#include <string>

#include "data/game_palette.h"
#include "data/picture.h"

namespace ostrane::command {

// The bytes of a PNG in which each cell is `scale` pixels wide and high. pixel_form.h tells the
// pixels. Throws data_error if libpng fails.
std::string png_of(const picture& drawn, const colour_table& palette, int scale = 1);

}  // namespace ostrane::command
