#pragma once

#include <string>
#include <string_view>

#include "data/picture.h"
#include "pictures/colour_finder.h"

namespace ostrane {

struct png_picture {
  picture drawn;
  std::int64_t inexact = 0;  // pixels whose colour or transparency had to change
};

// Reads a PNG of any kind. A pixel that is more than half transparent is unset. An index of an
// indexed PNG is kept if both palettes have the same colour there; otherwise `colours` finds the
// index. Throws data_error, which names `shown`, if the PNG is incomplete or larger than
// max_picture_cells.
png_picture read_png(std::string_view bytes, const std::u8string& shown, colour_finder& colours);

}  // namespace ostrane
