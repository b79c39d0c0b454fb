#pragma once

#include <array>
#include <cstdint>

namespace ostrane {

// The 256 colours used until an archive with a palette is opened, as 0xRRGGBB.
extern const std::array<std::uint32_t, 256> built_in_colours;

}  // namespace ostrane
