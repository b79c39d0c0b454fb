#pragma once

#include <string>

namespace ostrane::samples {

// A bell as a sound file of eight bits a sample.
std::string chime();

}  // namespace ostrane::samples
