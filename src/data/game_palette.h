#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "data/archive_format.h"
#include "files/binary_file.h"

namespace ostrane {

// 256 colours as 0xRRGGBB.
using rgb_palette = std::array<std::uint32_t, 256>;

// The colours of an archive without a palette. (The window keeps those of the previous archive.)
extern const rgb_palette built_in_colours;

// Reads a palette at a file offset. Built-in colours replace those past the end of the file, and
// all if the offset is negative. Throws file_error.
rgb_palette read_colours(files::binary_file& file, std::int32_t offset);

// Returns the record of the palette: the last one named GAME.PAL, in any case and with blanks at
// the ends. Null if there is none.
const dat_record* find_game_palette(std::span<const dat_record> records);

// Returns the colours of that palette, or the built-in ones. Throws file_error.
rgb_palette read_game_colours(files::binary_file& archive, std::span<const dat_record> records);

}  // namespace ostrane
