#pragma once

#include <array>
#include <cstdint>

namespace ostrane {

// The 256 colours that stand until an archive brings its own, as 0xRRGGBB.
extern const std::array<std::uint32_t, 256> built_in_colours;

}  // namespace ostrane
