#pragma once

namespace ostrane {

// Fills `colour_table` with the built-in colours.
void set_default_palette();

// Replaces `stored_palette` and `colour_table` by the palette at `game_pal_offset` in the archive.
// Without a known palette or with the archive gone nothing changes; colours that the file does not
// hold whole stay as they were.
void read_game_palette();

}  // namespace ostrane
