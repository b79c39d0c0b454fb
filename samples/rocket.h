#pragma once

#include <vector>

#include "data/picture.h"

namespace ostrane::samples {

// A rocket above its flame, 16 frames that join up again. The flame's length changes, and with it
// what of the picture is set.
std::vector<picture> rising_rocket();

}  // namespace ostrane::samples
