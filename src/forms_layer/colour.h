#pragma once

#include <cstdint>

namespace forms_layer {

// red + 256 * green + 65536 * blue, or 0x80000000 + the number of a system colour, which the screen
// maps to a colour of its theme.
using colour = std::uint32_t;

// Components are 0 to 255.
constexpr colour rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | green << 8U | blue << 16U;
}

constexpr std::uint32_t red_of(colour c) { return c & 0xFFU; }
constexpr std::uint32_t green_of(colour c) { return c >> 8U & 0xFFU; }
constexpr std::uint32_t blue_of(colour c) { return c >> 16U & 0xFFU; }

constexpr colour system_menu = 0x80000004;
constexpr colour system_window = 0x80000005;
constexpr colour system_button_face = 0x8000000F;
constexpr colour system_light = 0x80000016;

constexpr bool is_system_colour(colour c) { return (c & 0x80000000U) != 0; }

}  // namespace forms_layer
