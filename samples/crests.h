#pragma once

#include <vector>

#include "data/picture.h"

namespace ostrane::samples {

// Shields of 40 by 48 cells, each field divided in another way.
std::vector<picture> crest_collection();

}  // namespace ostrane::samples
