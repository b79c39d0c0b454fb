#pragma once

#include <string>
#include <vector>

#include "data/picture.h"

namespace ostrane::bench {

// Encodes a picture as a PNG with a palette of 256 colours. Unset cells get index 0.
std::string png_of(const picture& drawn);

// Decodes the PNG at `at` into `to`, one palette index per pixel, and sets `at` to the end of the
// PNG. `to` must be large enough.
void decode_png(const char*& at, unsigned char* to);

}  // namespace ostrane::bench
