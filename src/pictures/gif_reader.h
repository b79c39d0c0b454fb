#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "data/marked_picture.h"

namespace ostrane {

// Reads the pictures that a GIF shows, each as large as its screen, with marked cells. Throws
// data_error, which names `shown`, if the GIF is incomplete, or if its pictures have more than
// max_picture_cells together.
std::vector<picture> read_gif(std::string_view bytes, const std::u8string& shown,
                              colour_finder& colours);

}  // namespace ostrane
