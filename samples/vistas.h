#pragma once

#include <vector>

#include "data/picture.h"

namespace ostrane::samples {

// A lake below mountains at dawn, at noon, at dusk and at night, 226 by 176 pixels each.
std::vector<picture> day_of_vistas();

}  // namespace ostrane::samples
