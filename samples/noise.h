#pragma once

#include <cstdint>

#include "space.h"

namespace ostrane::samples {

// A number of 0 to 1 that is the same for the same whole numbers on every machine.
double scatter(int x, int y, int z, std::uint32_t seed);

// A smooth field of 0 to 1 without direction; hills are about 1 wide.
double noise(const vector& at, std::uint32_t seed);

// Hills upon hills, each layer half as wide and half as high as the one before. 0 to 1.
double clouds(vector at, int layers, std::uint32_t seed);

}  // namespace ostrane::samples
