#include "game_palette.h"

#include <cmath>
#include <cstdint>

#include "ink.h"

namespace ostrane::samples {
namespace {

constexpr int key_count = 4;

// 0xRRGGBB at the start, one third, two thirds and the end of each ramp.
constexpr std::uint32_t keys[ramp_count][key_count] = {
    {0x000000, 0x4C4C50, 0xA2A2A6, 0xFFFFFF},  // grey
    {0x05030F, 0x1A1C4C, 0x4A5CAA, 0xB4C8F4},  // night
    {0x020A1E, 0x0A3C7A, 0x2080C4, 0xA4ECFF},  // ocean
    {0x021414, 0x0A4C4C, 0x2AA492, 0xC8FFF0},  // teal
    {0x06140A, 0x1A5A22, 0x58A83A, 0xE2F89A},  // leaf
    {0x10120A, 0x3C4420, 0x7C8444, 0xDADA9C},  // moss
    {0x241408, 0x805428, 0xD0A060, 0xFFF4D2},  // sand
    {0x140A06, 0x4C2C18, 0x94603A, 0xEAC49C},  // earth
    {0x180604, 0x6C2010, 0xC45A2A, 0xFFCC94},  // rust
    {0x200400, 0xA81C00, 0xFF8C10, 0xFFFCC4},  // flame
    {0x1C1000, 0x7C5000, 0xE2B222, 0xFFFCE2},  // gold
    {0x180410, 0x7C1842, 0xE25A8A, 0xFFE2EC},  // rose
    {0x0C0418, 0x441A7C, 0x945AD2, 0xF0DEFF},  // violet
    {0x0A1420, 0x486A8A, 0xA2CAE2, 0xFFFFFF},  // ice
    {0x140A22, 0x5A2A5E, 0xC66A6A, 0xFFD6A2},  // dusk
    {0x0A0C12, 0x3C464E, 0x8E9AA6, 0xF2F6FA},  // steel
};

// One 8-bit component of a shade, `shift` bits up.
std::uint8_t component(const std::uint32_t (&ramp_keys)[key_count], int shade, unsigned shift) {
  const double position = static_cast<double>(shade) * (key_count - 1) / (shade_count - 1);
  const int before = shade == shade_count - 1 ? key_count - 2 : static_cast<int>(position);
  const double low = ramp_keys[before] >> shift & 0xFFU;
  const double high = ramp_keys[before + 1] >> shift & 0xFFU;
  return static_cast<std::uint8_t>(std::lround(low + (high - low) * (position - before)));
}

}  // namespace

std::string game_palette() {
  std::string bytes;
  for (const auto& ramp_keys : keys) {
    for (int shade = 0; shade < shade_count; ++shade) {
      for (const unsigned shift : {0U, 8U, 16U}) {
        bytes += static_cast<char>(component(ramp_keys, shade, shift));
      }
      bytes += '\0';
    }
  }
  return bytes;
}

}  // namespace ostrane::samples
