#pragma once

#include <cstdint>

// The context menu on the icons of `Form1`.
namespace ostrane {

bool shows_icon(std::int32_t slot);

// Enables the items for a slot, which becomes `menu_target`.
void prepare_picture_menu(std::int32_t slot);

// Puts the picture of `menu_target` on the clipboard.
void copy_picture();

// Asks for a file and saves the picture of `menu_target` as a PNG. Reads the archive, which must be
// unchanged.
void save_picture();

// The same for the series. The name that the user enters selects the form: ".gif" the motion,
// "-0001.png" (any digits) a PNG per icon, and ".png" one PNG, unless a PNG per icon was selected
// as the kind.
void save_series();

}  // namespace ostrane
