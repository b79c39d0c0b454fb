#include "ink.h"

#include <algorithm>
#include <cmath>

namespace ostrane::samples {
namespace {

// Ordered 4x4 dither. The offset of 0.5 keeps a threshold from being equal to a shade.
double threshold(int column, int row) {
  constexpr int order[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};
  return (order[row & 3][column & 3] + 0.5) / 16.0;
}

std::uint8_t index_of(const ink& colour, int column, int row) {
  const double light = std::clamp(colour.light, 0.0, 1.0) * (shade_count - 1);
  const int shade =
      std::min(static_cast<int>(std::floor(light + threshold(column, row))), shade_count - 1);
  return static_cast<std::uint8_t>(static_cast<int>(colour.hue) * shade_count + shade);
}

}  // namespace

void paint_at(picture& to, int left, int top, int columns, int rows, const shader& look) {
  for (int row = std::max(top, 0); row < std::min(top + rows, to.rows()); ++row) {
    for (int column = std::max(left, 0); column < std::min(left + columns, to.columns());
         ++column) {
      if (const auto colour = look(column - left + 0.5, row - top + 0.5)) {
        to.set(column, row, index_of(*colour, column, row));
      }
    }
  }
}

void paint(picture& to, const shader& look) { paint_at(to, 0, 0, to.columns(), to.rows(), look); }

picture painted(int columns, int rows, const shader& look) {
  picture to(columns, rows);
  paint(to, look);
  return to;
}

}  // namespace ostrane::samples
