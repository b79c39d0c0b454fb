#pragma once

#include <string>

namespace ostrane::samples {

// The sound of a bell, a WAV file with 8 bits per sample.
std::string chime();

}  // namespace ostrane::samples
