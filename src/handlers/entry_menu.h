#pragma once

#include <cstdint>

// The context menu on the rows of `List1`.
namespace ostrane {

// False for the end record, unless it is selected with several entries.
bool has_entry_menu(std::int32_t row);

// Enables the item for the row of an entry, which becomes `menu_target`, or those for several rows
// if it is one of them.
void prepare_entry_menu(std::int32_t row);

// Asks for a file and extracts the entry `menu_target` to it. An existing file is replaced
// atomically.
void extract_one_entry();

// Extracts what is selected: the entry of the row, or several entries into a folder.
void extract_selection();

}  // namespace ostrane
