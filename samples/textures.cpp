#include "textures.h"

#include <algorithm>
#include <cmath>

#include "noise.h"

namespace ostrane::samples {
namespace {

// 1 where the noise is 0.5, falling off to both sides.
double veins(const vector& at, std::uint32_t seed) {
  return 1 - std::min(std::abs(clouds(at, 4, seed) - 0.5) * 12, 1.0);
}

material dry_land(double height) {
  if (height < 0.545) return {{ramp::sand, 0.75}};
  if (height < 0.66) return {{ramp::leaf, 0.95 - 2.6 * (height - 0.545)}};
  if (height < 0.72) return {{ramp::earth, 0.6}};
  return {{ramp::ice, 0.95}};
}

// The light that a crater adds at a distance from its middle: dark floor, bright wall.
double dent(double distance, double radius) {
  if (distance > radius) return 0;
  return distance > 0.75 * radius ? 0.18 : -0.16;
}

}  // namespace

material seas_and_land(const vector& point) {
  const double height = clouds(1.9 * point, 5, 11);
  const double cover = clouds(vector{2.6 * point.x, 4.2 * point.y, 2.6 * point.z}, 4, 40);
  if (cover > 0.58) return {{ramp::ice, 0.7 + 1.6 * (cover - 0.58)}};
  if (std::abs(point.y) + 0.25 * (height - 0.5) > 0.86) return {{ramp::ice, 0.95}};
  if (height < 0.52) return {{ramp::ocean, 0.2 + 0.75 * height}, 0.9};
  return dry_land(height);
}

material banded_gas(const vector& point) {
  const double flow = clouds(3.0 * point, 3, 7);
  const double storm = std::hypot((point.x - 0.1) * 1.4, (point.y - 0.36) * 3.2);
  if (point.z > 0 && storm < 0.36) return {{ramp::rust, 0.85 - storm}};
  const double band = noise({0, 5.5 * point.y + 0.9 * flow, 0}, 3);
  if (band > 0.62) return {{ramp::sand, 0.95}};
  if (band > 0.36) return {{ramp::sand, 0.55 + 0.5 * band}};
  return {{ramp::rust, 0.5 + 0.6 * band}};
}

material pale_gas(const vector& point) {
  const double band = noise({0, 4.0 * point.y + 0.6 * clouds(2.0 * point, 3, 19), 4}, 23);
  return {{ramp::teal, 0.55 + 0.5 * band}};
}

material lava(const vector& point) {
  const double heat = veins(2.4 * point, 29);
  if (heat > 0.45) return {{ramp::flame, 0.35 + 0.6 * heat}, 0, 1};
  return {{ramp::earth, 0.25 + 0.5 * clouds(6.0 * point, 3, 31)}};
}

material desert(const vector& point) {
  const double dunes = clouds({3 * point.x, 9 * point.y, 3 * point.z}, 4, 37);
  if (std::abs(point.y) > 0.9) return {{ramp::ice, 0.9}};
  return dunes > 0.56 ? material{{ramp::rust, 0.75}} : material{{ramp::sand, 0.35 + 0.8 * dunes}};
}

material cracked_ice(const vector& point) {
  const double crack = veins(2.0 * point, 43);
  if (crack > 0.7) return {{ramp::ocean, 0.75}};
  return {{ramp::ice, 0.7 + 0.4 * clouds(5.0 * point, 3, 47)}, 0.5};
}

material cratered_rock(const vector& point) {
  double light = 0.5 + 0.4 * clouds(4.0 * point, 4, 53);
  for (int i = 0; i < 40; ++i) {
    const auto random = [i](int axis) { return 2 * scatter(i, axis, 0, 59) - 1; };
    const vector middle = unit({random(0), random(1), random(2)});
    const vector offset = point + -1.0 * middle;
    light += dent(std::sqrt(dot(offset, offset)), 0.08 + 0.26 * scatter(i, 3, 0, 59));
  }
  return {{ramp::grey, std::clamp(light, 0.25, 1.0)}};
}

}  // namespace ostrane::samples
