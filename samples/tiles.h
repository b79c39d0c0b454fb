#pragma once

#include <vector>

#include "data/picture.h"

namespace ostrane::samples {

// Blocks of ground seen from above a corner, of many sizes and each with margins of its own on all
// four sides.
std::vector<picture> land_tiles();

}  // namespace ostrane::samples
