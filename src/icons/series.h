#pragma once

namespace ostrane {

// Shows the first series of the entry `selected_index`, under the working message.
void show_shp_series();

// Shows the series after the current one, unless the file has no more icons or its archive is no
// longer the open one.
void show_next_series();

// Draws the icons from `next_icon` on, one per slot, up to the first of: the end of the file,
// `max_icons` slots, the bottom of `Frame1`, an icon position outside the archive. Sets `Text2`,
// `Text3`, `slots_drawn` and `shown_slot`. If the archive cannot be read, shows a message and the
// icons drawn so far.
void draw_shp_series();

}  // namespace ostrane
