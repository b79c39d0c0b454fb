#pragma once

#include <cstdint>

#include "space.h"

namespace ostrane::samples {

// A hash of 0 to 1, the same on every machine.
double scatter(int x, int y, int z, std::uint32_t seed);

// Value noise of 0 to 1 with a period of about 1.
double noise(const vector& at, std::uint32_t seed);

// Fractal noise of 0 to 1; each layer has half the period and half the amplitude of the one before.
double clouds(vector at, int layers, std::uint32_t seed);

}  // namespace ostrane::samples
