#pragma once

#include "globe.h"

// The surfaces of worlds.
namespace ostrane::samples {

ground seas_and_land(const vector& point);
ground banded_gas(const vector& point);
ground pale_gas(const vector& point);
ground lava(const vector& point);
ground desert(const vector& point);
ground cracked_ice(const vector& point);
ground cratered_rock(const vector& point);

}  // namespace ostrane::samples
