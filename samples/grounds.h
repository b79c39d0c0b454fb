#pragma once

#include "globe.h"

// What worlds are made of. Each is a surface.
namespace ostrane::samples {

ground seas_and_land(const vector& place);
ground banded_gas(const vector& place);
ground pale_gas(const vector& place);
ground lava(const vector& place);
ground desert(const vector& place);
ground cracked_ice(const vector& place);
ground cratered_rock(const vector& place);

}  // namespace ostrane::samples
