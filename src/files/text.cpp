#include "files/text.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "files/code_page.h"

namespace files {

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

bool is_control_character(char c) {
  constexpr std::string_view in_code_page = "\x7F\x81\x8D\x8F\x90\x9D";
  return static_cast<unsigned char>(c) < 0x20 || in_code_page.find(c) != in_code_page.npos;
}

std::string printable(std::string text) {
  std::replace_if(text.begin(), text.end(), is_control_character, '?');
  return text;
}

// U+0080 to U+009F have the bytes C2 80 to C2 9F.
std::u8string printable(std::u8string text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool is_c1 = text[i] == 0xC2 && i + 1 < text.size() && text[i + 1] < 0xA0;
    if (is_c1) text.erase(i, 1);
    if (is_c1 || text[i] < 0x20 || text[i] == 0x7F) text[i] = u8'?';
  }
  return text;
}

std::string_view last_characters(std::string_view text, std::size_t count) {
  return text.size() <= count ? text : text.substr(text.size() - count);
}

bool matches_pattern(const std::string& name, const std::string& pattern) {
  const std::string text = upper_case(name);
  const std::string wanted = upper_case(pattern);
  std::size_t at = 0;
  std::size_t in_pattern = 0;
  std::size_t star = std::string::npos;
  std::size_t star_ends = 0;
  while (at < text.size()) {
    const bool more = in_pattern < wanted.size();
    if (more && wanted[in_pattern] == '*') {
      star = in_pattern++;
      star_ends = at;
    } else if (more && (wanted[in_pattern] == '?' || wanted[in_pattern] == text[at])) {
      ++at;
      ++in_pattern;
    } else if (star != std::string::npos) {
      in_pattern = star + 1;
      at = ++star_ends;
    } else {
      return false;
    }
  }
  return wanted.find_first_not_of('*', in_pattern) == std::string::npos;
}

std::string compare_key(std::string_view name) { return upper_case(trimmed(name)); }

std::optional<double> as_number(std::string_view text) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  // from_chars also accepts a minus sign, "inf" and "nan".
  const bool may_be_number = text.find_first_not_of("0123456789.eE+-") == text.npos;
  if (!may_be_number || text.starts_with('-')) return std::nullopt;
  double value = 0;
  const char* const end = text.data() + text.size();
  const auto [stopped_at, error] = std::from_chars(text.data(), end, value);
  if (error == std::errc::invalid_argument || stopped_at != end) return std::nullopt;
  if (error == std::errc::result_out_of_range) {
    const std::size_t exponent = text.find_first_of("eE");
    const bool tiny = exponent != text.npos && text.find('-', exponent) != text.npos;
    value = tiny ? 0 : std::numeric_limits<double>::infinity();
  }
  return negative ? -value : value;
}

}  // namespace files
