#pragma once

#include <string>

namespace ostrane::samples {

// The bytes of GAME.PAL: 256 colours of four bytes, blue, green, red and 0. The ramps of ink.h.
std::string game_palette();

}  // namespace ostrane::samples
