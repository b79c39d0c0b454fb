#pragma once

#include <functional>
#include <optional>

#include "ink.h"
#include "space.h"

namespace ostrane::samples {

// What a place on a globe looks like in full light. `gloss` mirrors the sun, `glow` is light of its
// own; both run from 0 to 1.
struct ground {
  ink colour;
  double gloss = 0;
  double glow = 0;
};

// The ground at a place of the unit sphere, its y axis from the north pole to the south pole.
using surface = std::function<ground(const vector& place)>;

struct globe {
  surface look;
  double turn = 0;  // about its axis, in radians
  double tilt = 0;  // of the axis to the right, in radians
  std::optional<ramp> air = {};
};

// What is seen at (x, y) of a globe of radius 1 around (0, 0); nothing beside it.
std::optional<ink> seen(const globe& shown, double x, double y);

}  // namespace ostrane::samples
