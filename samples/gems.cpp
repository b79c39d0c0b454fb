#include "gems.h"

#include <cmath>

#include "ink.h"
#include "space.h"

namespace ostrane::samples {
namespace {

constexpr int cuts = 25;
constexpr int size = 20;

// A cut is a polygon of `sides` equal sides around a flat table, turned and stretched.
struct cut {
  int sides;
  double table;   // width of the table / width of the stone
  double turn;    // in sides
  double narrow;  // width / height
};

cut cut_of(int number) {
  constexpr int sides[5] = {3, 4, 5, 6, 8};
  constexpr cut styles[5] = {
      {0, 0.55, 0.0, 1.0}, {0, 0.35, 0.5, 1.0}, {0, 0.62, 0.5, 0.72},
      {0, 0.0, 0.0, 0.8},  {0, 0.5, 0.25, 1.0},
  };
  cut shape = styles[number / 5];
  shape.sides = sides[number % 5];
  return shape;
}

// A point on a stone.
struct facet {
  double out;        // distance from the middle / distance of the edge
  double direction;  // of the side's middle, in radians
  double along;      // position along the side, -1 to 1
};

facet facet_at(const cut& shape, double x, double y) {
  const double side_angle = 2 * pi / shape.sides;
  const double upwards = -pi / 2 + shape.turn * side_angle;
  const double side = std::round((std::atan2(y, x) - upwards) / side_angle - 0.5) + 0.5;
  const double direction = upwards + side * side_angle;
  const double towards = x * std::cos(direction) + y * std::sin(direction);
  const double across = y * std::cos(direction) - x * std::sin(direction);
  const double edge = std::cos(side_angle / 2);
  return {towards / edge, direction, towards > 0 ? across / towards / std::tan(side_angle / 2) : 0};
}

std::optional<ink> colour_at(const cut& shape, ramp hue, double x, double y) {
  const facet point = facet_at(shape, x, y);
  if (point.out > 1) return std::nullopt;
  if (point.out > 0.88) return ink{hue, 0.16};
  const vector light = towards_light();
  if (point.out < shape.table) return ink{hue, 0.68 - 0.28 * (x + y) + (x + y < -0.3 ? 0.2 : 0)};
  const vector normal = unit({std::cos(point.direction), std::sin(point.direction), 0.75});
  const double halves = point.along > 0 ? 0.07 : -0.05;
  return ink{hue, 0.32 + 0.62 * dot(normal, light) + halves};
}

picture stone(const cut& shape, ramp hue) {
  constexpr double radius = size / 2.0 - 0.6;
  return painted(size, size, [&](double column, double row) {
    return colour_at(shape, hue, (column - size / 2.0) / radius / shape.narrow,
                     (row - size / 2.0) / radius);
  });
}

}  // namespace

std::vector<picture> gem_collection() {
  std::vector<picture> stones;
  for (int number = 0; number < cuts; ++number) {
    for (int hue = 0; hue < ramp_count; ++hue) {
      stones.push_back(stone(cut_of(number), static_cast<ramp>(hue)));
    }
  }
  return stones;
}

}  // namespace ostrane::samples
