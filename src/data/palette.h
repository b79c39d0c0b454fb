#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "files/binary_file.h"

// The entry GAME.PAL: 256 colours of 4 bytes, 1024 bytes from the start of the entry.
//
//   offset in a colour   size   content
//   0                    1      blue
//   1                    1      green
//   2                    1      red
//   3                    1      unused
namespace ostrane {

constexpr std::size_t palette_colours = 256;
constexpr std::size_t colour_size = 4;  // bytes

using stored_colour = std::array<std::uint8_t, colour_size>;
using stored_palette = std::array<stored_colour, palette_colours>;

// Reads the palette at a file offset. Colours past the end of the file stay unchanged. Returns the
// number of colours read. Throws file_error.
std::size_t read_palette(files::binary_file& file, std::int32_t offset, stored_palette& palette);

}  // namespace ostrane
