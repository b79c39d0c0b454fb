#pragma once

#include <cstdint>

namespace ostrane {

// Brings the numbers of the icon on slot `Index` into `Form3`, if the entry selected in `List1` is
// an icon file and there is such a slot (1 to 9999). Nothing is read from the archive.
void show_icon_report(std::int32_t Index);

}  // namespace ostrane
