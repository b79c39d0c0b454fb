#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrane {

enum class entry_kind : std::uint8_t { icons, palette, text, other };

// Decides by the extension of the name, and by the name for 000DATUP.000.
entry_kind kind_of_entry(std::string_view name);

// "icons", "palette", "text" or "other".
const char* text_of(entry_kind kind);

}  // namespace ostrane
