#pragma once

#include <cstdint>

// The context menu on the icons of `Form1`.
namespace ostrane {

// For a slot, which becomes `menu_target`. False if the slot shows no picture of an icon.
bool prepare_picture_menu(std::int32_t slot);

// Puts the picture of `menu_target` on the clipboard.
void copy_picture();

// Asks for a file and saves the picture of `menu_target` there, as a PNG. Reads the archive, which
// must not have changed.
void save_picture();

// Saves the series likewise. The name that the user gives tells the form: ".gif" the motion,
// "-0001.png" (any digits) a PNG for each icon, and ".png" one PNG, unless a PNG for each icon was
// selected as the kind.
void save_series();

}  // namespace ostrane
