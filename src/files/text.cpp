#include "files/text.h"

#include <charconv>
#include <limits>

namespace files {

namespace {

std::size_t count_digits(std::string_view text, std::size_t from) {
  std::size_t behind = from;
  while (behind < text.size() && text[behind] >= '0' && text[behind] <= '9') ++behind;
  return behind - from;
}

// True if all of `text` is digits, optionally with a point among or around them, and then
// optionally an exponent.
bool has_form_of_number(std::string_view text) {
  std::size_t at = count_digits(text, 0);
  std::size_t digits = at;
  if (at < text.size() && text[at] == '.') {
    const std::size_t fraction = count_digits(text, at + 1);
    digits += fraction;
    at += 1 + fraction;
  }
  if (digits == 0) return false;
  if (at == text.size()) return true;
  if (text[at] != 'e' && text[at] != 'E') return false;
  ++at;
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
  const std::size_t exponent = count_digits(text, at);
  return exponent > 0 && at + exponent == text.size();
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

std::string_view last_characters(std::string_view text, std::size_t count) {
  return text.size() <= count ? text : text.substr(text.size() - count);
}

std::optional<double> as_number(std::string_view text) {
  const bool negative = !text.empty() && text.front() == '-';
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  if (!has_form_of_number(text)) return std::nullopt;
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    // Too small is as good as zero; only too large a number has no double.
    const std::size_t exponent = text.find_first_of("eE");
    const bool tiny = exponent != std::string_view::npos && text.find('-', exponent) != text.npos;
    value = tiny ? 0 : std::numeric_limits<double>::infinity();
  }
  return negative ? -value : value;
}

}  // namespace files
