#pragma once

#include <optional>
#include <string>
#include <string_view>

// All text of the tool is in code page 1252, one byte per character. The five bytes that the code
// page does not define (81, 8D, 8F, 90, 9D) are the control characters of the same number.
namespace files {

std::string to_utf8(std::string_view text);

// Returns nullopt if the text is not UTF-8 or holds a character that the code page lacks.
std::optional<std::string> from_utf8(std::string_view utf8);

// Like from_utf8, with "?" for each such character and for each byte that is not UTF-8.
std::string from_utf8_lossy(std::string_view utf8);

// Returns UTF-8: bytes that are not UTF-8 are converted from the code page, for texts with names in
// either.
std::string mixed_to_utf8(std::string_view text);

// Letters with accents are converted too.
char upper_case(char c);
std::string upper_case(std::string_view text);
std::string lower_case(std::string_view text);

}  // namespace files
