#pragma once

#include <vector>

#include "data/picture.h"

namespace ostrane::samples {

// One turn of a world of seas and clouds, 32 frames of 64 by 64 pixels.
std::vector<picture> turning_world();

// Worlds of many kinds and sizes, one of them with rings.
std::vector<picture> world_gallery();

// A bare rock of `size` by `size` pixels.
picture barren_world(int size);

}  // namespace ostrane::samples
