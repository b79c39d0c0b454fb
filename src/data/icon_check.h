#pragma once

#include <functional>
#include <string>

#include "data/icon_stream.h"

namespace ostrane {

// Reports the faults of an icon file at the offsets [start, end), which must lie in the file: of
// its head and directory, and of each icon's head, box and stream. Throws file_error.
void check_icon_file(files::binary_file& file, std::int32_t start, std::int32_t end,
                     icon_stream& stream, const std::function<void(const std::string&)>& report);

}  // namespace ostrane
