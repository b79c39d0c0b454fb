#pragma once

#include <vector>

#include "data/picture.h"

namespace ostrane::samples {

// A rocket above its flame, a loop of 16 frames. The length of the flame changes, and with it the
// data box of the icon.
std::vector<picture> rising_rocket();

}  // namespace ostrane::samples
