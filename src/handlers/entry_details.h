#pragma once

#include <cstdint>
#include <string>
#include <vector>

// What a user wants to know about the rows of `List1` before a click.
namespace ostrane {

// The rows whose name or description contains the text, in any case. None for an empty text.
std::vector<std::int32_t> rows_with(const std::string& text);

// Size, offset and kind of an entry, and the number of its icons. "" for the end record. Without a
// message if the archive cannot be read.
std::string entry_tool_tip(std::int32_t row);

}  // namespace ostrane
