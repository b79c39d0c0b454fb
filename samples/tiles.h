#pragma once

#include <vector>

#include "data/picture.h"

namespace ostrane::samples {

// Blocks of terrain in isometric view, in many sizes and with different margins on all four sides.
std::vector<picture> land_tiles();

}  // namespace ostrane::samples
