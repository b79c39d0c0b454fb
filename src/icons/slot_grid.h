#pragma once

#include <cstdint>

// The grid of slots in `Frame1`. All lengths are twips.
namespace ostrane {

constexpr std::int32_t grid_left = 200;
constexpr std::int32_t grid_top = 800;  // below the fields and buttons of the frame
constexpr std::int32_t grid_gap = 15;   // between two slots

}  // namespace ostrane
