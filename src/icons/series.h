#pragma once

namespace ostrane {

// Shows the first series of the entry `selected_index`, with `Form3` on the screen meanwhile.
void show_shp_series();

// Shows the series behind the one on show, unless the file is at its end or the archive that it
// came from is not the open one any more.
void show_next_series();

// Draws the icons from `next_icon` on, each on a slot of its own, until a stop: the end of the
// file, `max_icons` slots, the bottom of `Frame1`, or an icon that the archive has no place for.
// An archive that cannot be opened gives a message and an empty series.
void draw_shp_series();

}  // namespace ostrane
