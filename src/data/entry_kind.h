#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrane {

enum class entry_kind : std::uint8_t { icons, palette, text, other };

// Decides by the extension in any case, and by the exact name for 000DATUP.000; blanks at both ends
// are ignored. `name` has no NUL characters. name_without_nuls and name_with_blanks give different
// kinds only for a NUL inside the extension. The icon report passes the latter, all others pass the
// former.
entry_kind kind_of_entry(std::string_view name);

// "icons", "palette", "text" or "other".
const char* text_of(entry_kind kind);

}  // namespace ostrane
