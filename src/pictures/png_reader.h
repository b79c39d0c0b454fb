#pragma once

#include <string>
#include <string_view>

#include "data/marked_picture.h"

namespace ostrane {

// Reads a PNG of any kind into marked cells. Throws data_error, which names `shown`, if the PNG is
// incomplete, another format, wider or higher than 32768 pixels, or larger than max_picture_cells.
picture read_png(std::string_view bytes, const std::u8string& shown, colour_finder& colours);

}  // namespace ostrane
