#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace files {

// `text` without the blanks (0x20 only) at both ends.
std::string_view trimmed(std::string_view text);

// The last `count` characters, or all if there are fewer.
std::string_view last_characters(std::string_view text, std::size_t count);

// The code page maps 0x7F and its five undefined bytes to control characters.
bool is_control_character(char c);

// Replaces control characters by "?", so that the text is one line and no command to a terminal.
std::string printable(std::string text);
std::u8string printable(std::u8string text);

// Ignores case. "*" matches any number of characters, "?" exactly one.
bool matches_pattern(const std::string& name, const std::string& pattern);

// Names in lists are equal if these keys are, and sorted by them: trimmed, in upper case. The keys
// compare by unsigned bytes.
std::string compare_key(std::string_view name);

// Parses a decimal number: optional sign, digits with an optional point, optional exponent, nothing
// else. Returns nullopt for other text, infinity if the number is too large for a double and 0 if
// it is too small.
std::optional<double> as_number(std::string_view text);

}  // namespace files
