#pragma once

#include <optional>
#include <string>
#include <string_view>

// Text of the tool is code page 1252, one byte a character. The five bytes that the code page
// leaves open (81, 8D, 8F, 90, 9D) stand for the control characters of the same number.
namespace files {

// Any text has a form in UTF-8.
std::string to_utf8(std::string_view text);

// Nothing if the text is not UTF-8 or holds a character that the code page has not got.
std::optional<std::string> from_utf8(std::string_view utf8);

// Like from_utf8, with "?" for each character that the code page has not got.
std::string from_utf8_lossy(std::string_view utf8);

// Folds the code page's accented letters too.
char upper_case(char c);
std::string upper_case(std::string_view text);
std::string lower_case(std::string_view text);

}  // namespace files
