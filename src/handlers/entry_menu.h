#pragma once

#include <cstdint>

// The context menu on the rows of `List1`.
namespace ostrane {

// Enables the item for the row of an entry, which becomes `menu_target`. Returns false for the end
// record.
bool prepare_entry_menu(std::int32_t row);

// Asks for a file and extracts the entry `menu_target` to it. An existing file is replaced
// atomically.
void extract_one_entry();

}  // namespace ostrane
