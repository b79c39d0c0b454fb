#pragma once

#include <vector>

#include "data/picture.h"

namespace ostrane::samples {

// Shields of 40 by 48 pixels, each with another division of its field.
std::vector<picture> crest_collection();

}  // namespace ostrane::samples
