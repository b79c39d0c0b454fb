#pragma once

namespace ostrane {

// Puts the slot `current_slot`, which has its size, on the grid of `Frame1` behind the last one and
// shows it, and stores the icon's numbers in `slot_data`. Positions are twips in `Frame1`. If the
// slot would pass the bottom of the frame it stays hidden and `slot_fits` becomes false.
// `series_full` becomes true when the frame, the file or `max_icons` is at its end.
void place_icon_slot();

}  // namespace ostrane
