#pragma once

#include <functional>
#include <optional>

#include "ink.h"
#include "space.h"

namespace ostrane::samples {

// How a point of a globe looks in full light. `gloss` reflects the sun, `glow` is emitted light;
// both are 0 to 1.
struct material {
  ink colour;
  double gloss = 0;
  double glow = 0;
};

// The material at a point of the unit sphere, whose y axis points from the north to the south pole.
using texture = std::function<material(const vector& point)>;

struct globe {
  texture look;
  double turn = 0;  // about its axis, in radians
  double tilt = 0;  // of the axis to the right, in radians
  std::optional<ramp> air = {};
};

// The colour at (x, y) of a globe of radius 1 around (0, 0), or nullopt outside it.
std::optional<ink> colour_at(const globe& shown, double x, double y);

}  // namespace ostrane::samples
