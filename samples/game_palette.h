#pragma once

#include <string>

namespace ostrane::samples {

// The bytes of GAME.PAL with the ramps of ink.h: 256 colours of four bytes, blue, green, red, 0.
std::string game_palette();

}  // namespace ostrane::samples
