#include "tiles.h"

#include <cmath>

#include "ink.h"
#include "noise.h"
#include "space.h"

namespace ostrane::samples {
namespace {

struct terrain {
  ramp top;
  double top_light;
  ramp side;
  double grain;  // how rough the top looks
};

constexpr terrain grass{ramp::leaf, 0.66, ramp::earth, 0.4};
constexpr terrain meadow{ramp::moss, 0.7, ramp::earth, 0.5};
constexpr terrain water{ramp::ocean, 0.6, ramp::ocean, 0.35};
constexpr terrain sand{ramp::sand, 0.78, ramp::sand, 0.2};
constexpr terrain rock{ramp::grey, 0.6, ramp::grey, 0.5};
constexpr terrain snow{ramp::ice, 0.95, ramp::steel, 0.2};
constexpr terrain embers{ramp::flame, 0.55, ramp::earth, 0.9};
constexpr terrain heath{ramp::rose, 0.55, ramp::earth, 0.6};

struct tile {
  terrain kind;
  int width;   // of the block in pixels; its top is half as high
  int height;  // of its sides
  int left;    // margins around the block
  int top;
  int right;
  int bottom;
  int trees;
};

std::optional<ink> block(const tile& t, double x, double y) {
  const double half = t.width / 2.0;
  const double across = std::abs(x - half) / half;
  if (across > 1) return std::nullopt;
  const double rise = half / 2;  // half the height of the top
  const double from_middle = (y - rise) / rise;
  const double grain = clouds({0.35 * x, 0.7 * y, 0}, 3, 83) - 0.5;
  if (std::abs(from_middle) <= 1 - across) {
    return ink{t.kind.top, t.kind.top_light + t.kind.grain * grain};
  }
  const double down_the_side = y - rise * (2 - across);
  if (down_the_side < 0 || down_the_side > t.height) return std::nullopt;
  const bool turf = down_the_side < 2 + 3 * (grain + 0.5);
  const double light = (x < half ? 0.52 : 0.3) + 0.3 * grain;
  return ink{turf ? t.kind.top : t.kind.side, light};
}

// A tree whose foot is at (x, y).
void draw_tree(picture& on, double x, double y, double size) {
  const int left = static_cast<int>(x - size);
  const int top = static_cast<int>(y - 2.6 * size);
  const int columns = static_cast<int>(2 * size) + 1;
  const int rows = static_cast<int>(2.6 * size) + 1;
  paint_at(on, left, top, columns, rows, [&](double column, double row) -> std::optional<ink> {
    const double across = (column - size) / size;
    const double up = (row - size) / size;
    const double radius_squared = across * across + up * up;
    if (radius_squared < 1) {
      const vector normal{across, up, std::sqrt(1 - radius_squared)};
      return ink{ramp::leaf, 0.14 + 0.62 * std::max(dot(normal, towards_light()), 0.0) +
                                 0.2 * (noise({column, row, 5}, 89) - 0.5)};
    }
    if (up > 0 && std::abs(across) < 0.2) return ink{ramp::earth, 0.4 - 0.8 * across};
    return std::nullopt;
  });
}

picture tile_picture(const tile& t) {
  picture drawn(t.left + t.width + t.right, t.top + t.width / 2 + t.height + t.bottom);
  paint_at(drawn, t.left, t.top, t.width, t.width / 2 + t.height,
           [&](double x, double y) { return block(t, x, y); });
  for (int tree = 0; tree < t.trees; ++tree) {
    const double x = scatter(tree, 0, t.width, 97) - 0.5;
    const double y = (tree + 0.5) / t.trees - 0.5;
    draw_tree(drawn, t.left + t.width * (0.5 + 0.6 * x * (1 - std::abs(y))),
              t.top + t.width * (0.25 + 0.36 * y), t.width / 10.0 + 1.5);
  }
  return drawn;
}

}  // namespace

std::vector<picture> land_tiles() {
  constexpr tile tiles[] = {
      {grass, 64, 14, 4, 18, 4, 2, 5},   {water, 64, 8, 4, 24, 4, 2, 0},
      {sand, 64, 12, 4, 20, 4, 2, 0},    {rock, 64, 30, 4, 4, 4, 2, 0},
      {snow, 64, 22, 4, 10, 4, 2, 0},    {embers, 64, 14, 4, 18, 4, 2, 0},
      {heath, 64, 10, 4, 22, 4, 2, 0},   {meadow, 48, 10, 2, 12, 6, 3, 3},
      {grass, 48, 18, 6, 8, 2, 3, 1},    {water, 48, 6, 8, 14, 8, 8, 0},
      {rock, 48, 40, 3, 3, 3, 3, 0},     {sand, 48, 10, 1, 30, 1, 1, 0},
      {snow, 48, 26, 5, 6, 5, 5, 0},     {embers, 48, 20, 2, 8, 2, 10, 0},
      {meadow, 32, 8, 2, 12, 2, 2, 2},   {water, 32, 4, 12, 6, 3, 9, 0},
      {rock, 32, 32, 2, 2, 2, 2, 0},     {sand, 32, 6, 3, 3, 12, 12, 0},
      {heath, 32, 12, 7, 4, 7, 4, 0},    {snow, 32, 16, 1, 1, 1, 1, 0},
      {grass, 24, 8, 3, 12, 3, 2, 1},    {embers, 24, 24, 2, 2, 2, 2, 0},
      {water, 24, 4, 1, 8, 5, 2, 0},     {rock, 24, 12, 9, 9, 2, 2, 0},
      {sand, 16, 4, 2, 2, 8, 8, 0},      {snow, 16, 10, 8, 2, 2, 8, 0},
      {grass, 16, 6, 1, 6, 1, 1, 1},     {rock, 96, 40, 6, 8, 6, 4, 0},
      {meadow, 96, 20, 6, 28, 6, 4, 11}, {water, 96, 12, 6, 36, 6, 4, 0},
      {snow, 96, 28, 6, 20, 6, 4, 7},
  };
  std::vector<picture> pictures;
  for (const tile& t : tiles) pictures.push_back(tile_picture(t));
  return pictures;
}

}  // namespace ostrane::samples
