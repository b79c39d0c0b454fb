#pragma once

#include <cstddef>

// The entry GAME.PAL: 256 colours of 4 bytes, 1024 bytes from the entry's first on.
//
//   offset in a colour   size   content
//   0                    1      blue
//   1                    1      green
//   2                    1      red
//   3                    1      nothing
namespace ostrane {

constexpr std::size_t palette_colours = 256;
constexpr std::size_t colour_size = 4;  // bytes

// Fills `colour_table` with the built-in colours.
void set_default_palette();

// Replaces `stored_palette` and `colour_table` by the palette at `game_pal_offset` in the archive.
// Without a known palette or with the archive gone nothing changes; colours that the file does not
// hold whole stay as they were.
void read_game_palette();

}  // namespace ostrane
