#pragma once

#include <vector>

#include "data/picture.h"

namespace ostrane::samples {

// 400 cut stones of 20 by 20 pixels: 25 cuts, each in all 16 ramps of the palette.
std::vector<picture> gem_collection();

}  // namespace ostrane::samples
