#pragma once

#include <cstdint>

// Slots: the elements of `s16_image` from 1 on, each with the picture of one icon or as a swatch of
// a palette, and the grid of the icons in `Frame1`. All lengths are twips.
namespace ostrane {

constexpr std::int32_t grid_left = 200;
constexpr std::int32_t grid_top = 800;  // below the fields and buttons of the frame

// Loads `slot` (at most `slots_loaded` + 1) if it does not exist yet: hidden, with a drawing area
// in pixels. Changes `slots_loaded`.
void load_slot(std::int16_t slot);

// Clears the picture of a slot and makes it 100 by 100 twips.
void empty_slot(std::int32_t slot);

// Resets every loaded slot for icons: their tool tip, the default background, no picture, 100 by
// 100 twips.
void clear_slots_for_icons();

// Moves `current_slot`, whose size is set, to the next position of the grid, shows it and advances
// `next_icon`. Stores the icon's numbers in `slot_data`. If the slot would cross the bottom of the
// frame it stays hidden and `slot_fits` becomes false. `series_full` becomes true when the frame is
// full, at the last icon of the file and at `max_icons` slots. `series_next_icon` becomes the last
// icon placed.
void place_icon_slot();

// Hides and clears all slots, with the default background. Empties `Text3`, stops the motion, ends
// browsing and reading the entry, repaints `Form1`, and resets the grid to its first position.
void reset_icon_view();

}  // namespace ostrane
