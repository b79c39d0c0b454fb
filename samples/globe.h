#pragma once

#include <functional>
#include <optional>

#include "ink.h"
#include "space.h"

namespace ostrane::samples {

// A point of a globe in full light. `gloss` reflects the sun, `glow` is emitted light; both 0 to 1.
struct ground {
  ink colour;
  double gloss = 0;
  double glow = 0;
};

// The ground at a point of the unit sphere, whose y axis points from the north to the south pole.
using surface = std::function<ground(const vector& point)>;

struct globe {
  surface look;
  double turn = 0;  // about its axis, in radians
  double tilt = 0;  // of the axis to the right, in radians
  std::optional<ramp> air = {};
};

// The colour at (x, y) of a globe of radius 1 around (0, 0), or nullopt outside it.
std::optional<ink> colour_at(const globe& shown, double x, double y);

}  // namespace ostrane::samples
