#pragma once

#include <optional>
#include <string>
#include <string_view>

// Text of the tool in a std::string is in code page 1252, one byte per character. The five bytes
// that the code page does not define (81, 8D, 8F, 90, 9D) are the control characters of the same
// number. A std::u8string is in UTF-8; it can also hold the bytes of a system name that are not
// UTF-8.
namespace files {

std::u8string to_utf8(std::string_view text);

// Returns nullopt if the text is not UTF-8 or holds a character that the code page lacks.
std::optional<std::string> from_utf8(std::u8string_view utf8);

// Like from_utf8, with "?" for each such character and for each byte that is not UTF-8.
std::string from_utf8_lossy(std::u8string_view utf8);

// The same bytes in the other type, for arguments, standard output and libraries, which have UTF-8
// in a std::string.
inline std::u8string as_utf8(std::string_view bytes) { return {bytes.begin(), bytes.end()}; }
inline std::string as_bytes(std::u8string_view utf8) { return {utf8.begin(), utf8.end()}; }

// Letters with accents are converted too.
char upper_case(char c);
std::string upper_case(std::string_view text);
std::string lower_case(std::string_view text);

}  // namespace files
