#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ostrane {

enum class entry_kind : std::uint8_t { icons, palette, text, other };

// Decides by the extension in any case, and by the exact name for 000DATUP.000; blanks at both ends
// are ignored. `name` is that of name_without_nuls or name_with_blanks; their kinds differ only for
// a NUL inside the extension.
entry_kind kind_of_entry(std::string_view name);

// Of a text the window shows at most this many bytes, 2 MiB.
constexpr std::int64_t max_shown_text = std::int64_t{2} << 20U;

// "icons", "palette", "text" or "other".
const char* text_of(entry_kind kind);

}  // namespace ostrane
