#pragma once

#include <string>
#include <vector>

#include "data/picture.h"
#include "data/shp_format.h"

namespace ostrane {

// A picture on a sheet.
struct sheet_frame {
  std::u8string name;
  int x = 0;  // on the sheet
  int y = 0;
  int width = 0;
  int height = 0;
  int left = 0;  // in the picture
  int top = 0;
  int columns = 0;  // of the picture
  int rows = 0;
};

// Cuts a picture out of a sheet. Throws data_error if the frame is not inside both.
picture picture_of(const picture& whole, const sheet_frame& frame);

// The frames of a grid of equal cells, row by row. Throws data_error if the sides are no multiples.
std::vector<sheet_frame> frames_of_grid(const picture& whole, int columns, int rows);

// Returns a picture from a grid, whose cells are as large as the largest icon, in the size of an
// icon if no set cell is lost.
picture fitted(picture drawn, const icon_head& head);

// All pictures on a grid of equal cells, row by row, nearly square.
struct sheet {
  picture drawn{0, 0};
  int columns = 0;  // of the grid
  int cell_width = 0;
  int cell_height = 0;
};

// Throws data_error if the sheet would have more than max_picture_cells.
sheet sheet_of(const std::vector<picture>& pictures);

// The upper left cell of a picture on the sheet.
struct frame_offset {
  int left;
  int top;
};
frame_offset offset_of_frame(const sheet& all, std::size_t number);

}  // namespace ostrane
