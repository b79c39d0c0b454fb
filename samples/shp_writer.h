#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "picture.h"

namespace ostrane::samples {

// The first and last columns and rows of a picture that its stream covers.
struct data_box {
  std::int32_t first_col = 0;
  std::int32_t first_row = 0;
  std::int32_t last_col = 0;
  std::int32_t last_row = 0;
};

// An icon as it will stand in the file. Every number can be changed before it is written, to make
// an icon that a reader has to turn down.
struct shp_icon {
  std::int16_t no_of_rows = 0;  // the highest row number, so one less than the rows
  std::int16_t no_of_cols = 0;
  data_box box;
  std::string stream;  // one byte a character
};

// The smallest box with all set cells in it; the first cell alone if no cell is set.
data_box smallest_box(const picture& drawn);

// The run-length stream of the cells in the box.
std::string packed(const picture& drawn, const data_box& box);

// An icon with the smallest box, or with a box of one's own, which must lie in the picture.
shp_icon make_icon(const picture& drawn);
shp_icon make_icon(const picture& drawn, const data_box& box);

// The bytes of a whole icon file: head, directory, icons.
std::string shp_file(const std::vector<shp_icon>& icons);
std::string shp_file(const std::vector<picture>& pictures);

}  // namespace ostrane::samples
