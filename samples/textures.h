#pragma once

#include "globe.h"

// The textures of worlds.
namespace ostrane::samples {

material seas_and_land(const vector& point);
material banded_gas(const vector& point);
material pale_gas(const vector& point);
material lava(const vector& point);
material desert(const vector& point);
material cracked_ice(const vector& point);
material cratered_rock(const vector& point);

}  // namespace ostrane::samples
