#include "worlds.h"

#include <cmath>

#include "noise.h"
#include "textures.h"

namespace ostrane::samples {
namespace {

// A globe in a square picture of `size` pixels, `margin` pixels from its edges.
picture globe_picture(const globe& shown, int size, int margin) {
  const double middle = size / 2.0;
  const double radius = middle - margin;
  return painted(size, size, [&](double x, double y) {
    return colour_at(shown, (x - middle) / radius, (y - middle) / radius);
  });
}

// The ring at a distance from the centre, in radii of the world.
std::optional<ink> ring_at(double distance) {
  if (distance < 1.35 || distance > 2.3) return std::nullopt;
  if (distance > 1.88 && distance < 1.97) return std::nullopt;
  return ink{ramp::sand, 0.35 + 0.6 * noise({0, 0, 13 * distance}, 61)};
}

picture ringed_world() {
  const globe giant{banded_gas, 0.4, 0.3};
  constexpr double radius = 37;
  const double c = std::cos(giant.tilt);
  const double s = std::sin(giant.tilt);
  return painted(180, 104, [&](double x, double y) {
    const double across = (x - 90) / radius;
    const double down = (y - 52) / radius;
    const double along_ring = c * across + s * down;
    const double over_ring = (c * down - s * across) / 0.26;
    const auto ring = ring_at(std::hypot(along_ring, over_ring));
    const auto world = colour_at(giant, across, down);
    return ring && (over_ring > 0 || !world) ? ring : world;
  });
}

}  // namespace

std::vector<picture> turning_world() {
  constexpr int frames = 32;
  std::vector<picture> turn;
  turn.reserve(frames);
  for (int frame = 0; frame < frames; ++frame) {
    turn.push_back(
        globe_picture({seas_and_land, 2 * pi * frame / frames, 0.35, ramp::ocean}, 64, 3));
  }
  return turn;
}

std::vector<picture> world_gallery() {
  return {
      ringed_world(),
      globe_picture({seas_and_land, 2.2, 0.35, ramp::ocean}, 112, 4),
      globe_picture({cratered_rock, 0.0, 0.1}, 44, 2),
      globe_picture({lava, 1.0, -0.2}, 104, 6),
      globe_picture({cracked_ice, 0.0, 0.2, ramp::ice}, 72, 3),
      globe_picture({desert, 0.5, -0.3, ramp::dusk}, 96, 5),
      globe_picture({pale_gas, 0.0, 0.5, ramp::teal}, 88, 4),
      globe_picture({cratered_rock, 2.0, 0.0}, 28, 1),
      globe_picture({lava, 3.0, 0.2}, 48, 2),
      globe_picture({cracked_ice, 2.0, 0.0}, 24, 2),
      globe_picture({desert, 2.5, 0.2, ramp::sand}, 60, 4),
      globe_picture({banded_gas, 2.8, -0.2}, 100, 6),
      globe_picture({seas_and_land, 4.6, -0.3, ramp::ocean}, 52, 2),
      globe_picture({pale_gas, 1.0, -0.4}, 36, 3),
      globe_picture({cratered_rock, 4.0, 0.0}, 16, 1),
  };
}

picture barren_world(int size) { return globe_picture({cratered_rock, 1.0, 0.2}, size, 2); }

}  // namespace ostrane::samples
