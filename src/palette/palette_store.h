#pragma once

namespace ostrane {

// Fills `colour_table` with the built-in colours.
void set_default_palette();

// Reads the palette at `game_pal_offset` in the archive into `stored_palette` and `colour_table`.
// Colours that the file does not hold completely keep their values. Without a known palette, or if
// the archive cannot be read, nothing changes: the colours stay those of the previous archive.
void read_game_palette();

}  // namespace ostrane
