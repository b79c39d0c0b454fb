#pragma once

#include <string>
#include <vector>

#include "data/picture.h"

namespace ostrane::bench {

// A picture as a PNG file with a palette of 256 colours; unset cells are colour 0.
std::string png_of(const picture& drawn);

// Decodes a PNG from the bytes at `at` into `to`, one palette index a pixel, and moves `at` behind
// it. `to` must be large enough.
void decode_png(const char*& at, unsigned char* to);

}  // namespace ostrane::bench
