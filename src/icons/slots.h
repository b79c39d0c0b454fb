#pragma once

#include <cstdint>

namespace ostrane {

// Makes sure that the slot behind the last loaded one exists, working in pixels and hidden; a slot
// that exists stays as it is. `slot` is at most `slots_loaded` + 1.
void load_slot(std::int16_t slot);

// Takes the picture off a slot and makes it 100 by 100 twips.
void shrink_slot(std::int32_t slot);

// Every loaded slot back to its form as an icon: the tool tip of icons, no picture, 100 by 100
// twips.
void clear_slots_for_icons();

}  // namespace ostrane
