#pragma once

#include <cstdint>

namespace ostrane {

// Shows the numbers of the icon on slot `Index` (1 to 9999, others are ignored) in `Form3` if the
// entry selected in `List1` is an icon file. Reads `slot_data`, not the archive.
void show_icon_report(std::int32_t Index);

}  // namespace ostrane
