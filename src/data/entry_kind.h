#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrane {

enum class entry_kind : std::uint8_t { icons, palette, text, other };

// Determined by the extension.
entry_kind kind_of_entry(std::string_view name);

// "icons", "palette", "text" or "other".
const char* text_of(entry_kind kind);

}  // namespace ostrane
