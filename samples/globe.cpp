#include "globe.h"

#include <algorithm>
#include <cmath>

namespace ostrane::samples {
namespace {

vector point_on(const globe& shown, const vector& facing) {
  const double c = std::cos(shown.tilt);
  const double s = std::sin(shown.tilt);
  const vector upright{c * facing.x + s * facing.y, c * facing.y - s * facing.x, facing.z};
  return turned(upright, shown.turn);
}

// Specular highlight, strongest where the normal is halfway between the sun and the eye.
double shine(const vector& normal) {
  const vector half_way = unit(towards_light() + vector{0, 0, 1});
  return std::pow(std::max(dot(normal, half_way), 0.0), 24);
}

}  // namespace

std::optional<ink> colour_at(const globe& shown, double x, double y) {
  const double radius_squared = x * x + y * y;
  if (radius_squared > 1) return std::nullopt;
  const vector normal{x, y, std::sqrt(1 - radius_squared)};
  const double lit = std::max(dot(normal, towards_light()), 0.0);
  const material point = shown.look(point_on(shown, normal));
  if (shown.air && normal.z < 0.34 && lit > 0.12) return ink{*shown.air, 0.3 + 0.6 * lit};
  const double light = point.colour.light * (0.1 + 1.0 * lit) + 0.5 * point.gloss * shine(normal);
  return ink{point.colour.hue, std::max(light, point.glow * point.colour.light)};
}

}  // namespace ostrane::samples
