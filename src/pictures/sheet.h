#pragma once

#include <string>
#include <vector>

#include "data/picture.h"

namespace ostrane {

// All pictures on a grid of equal cells, row by row, nearly square.
struct sheet {
  picture drawn{0, 0};
  int columns = 0;  // of the grid
  int cell_width = 0;
  int cell_height = 0;
};

// Throws data_error if the sheet would have more than max_picture_cells.
sheet sheet_of(const std::vector<picture>& pictures);

// The JSON of a sheet for sprite editors: an array of frames, meta, and `icons`, the JSON of the
// icon file, under the key `ostrane`. `names` are the names of the frames, `image` is the name of
// the PNG; `pace` is in hundredths of a second.
std::string json_of(const sheet& all, const std::vector<picture>& pictures,
                    const std::vector<std::u8string>& names, const std::u8string& image, int pace,
                    int scale, const std::string& icons);

}  // namespace ostrane
