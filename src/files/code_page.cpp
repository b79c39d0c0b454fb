#include "files/code_page.h"

#include <algorithm>
#include <array>

namespace files {

namespace {

// Code points of the bytes 80 to 9F; every other byte is its own code point.
constexpr std::array<char32_t, 32> upper_controls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t code_point(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? upper_controls[byte - 0x80U] : byte;
}

std::optional<char> byte_of(char32_t point) {
  if (point < 0x80 || (point >= 0xA0 && point <= 0xFF)) return static_cast<char>(point);
  for (std::size_t i = 0; i < upper_controls.size(); ++i) {
    if (upper_controls[i] == point) return static_cast<char>(0x80 + i);
  }
  return std::nullopt;
}

constexpr char32_t not_utf8 = 0xFFFFFFFF;

// Removes one code point from the front of `rest` and returns it. If the bytes are not UTF-8,
// removes one byte and returns not_utf8.
char32_t take_code_point(std::u8string_view& rest) {
  const auto lead = static_cast<unsigned char>(rest.front());
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                             : lead < 0xF5 ? 4
                                           : 0;
  const auto refuse = [&rest] {
    rest.remove_prefix(1);
    return not_utf8;
  };
  if (length == 0 || rest.size() < length) return refuse();
  char32_t point = length == 1 ? lead : lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(rest[i]);
    if ((next & 0xC0U) != 0x80) return refuse();
    point = point << 6U | (next & 0x3FU);
  }
  // A smaller code point in a sequence of this length is an overlong form.
  constexpr std::array<char32_t, 5> min_point = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
  if (point < min_point[length] || point > 0x10FFFF || surrogate) return refuse();
  rest.remove_prefix(length);
  return point;
}

void append_utf8(std::u8string& to, char32_t point) {
  if (point < 0x80) {
    to.push_back(static_cast<char8_t>(point));
  } else if (point < 0x800) {
    to.push_back(static_cast<char8_t>(0xC0U | point >> 6U));
    to.push_back(static_cast<char8_t>(0x80U | (point & 0x3FU)));
  } else {
    to.push_back(static_cast<char8_t>(0xE0U | point >> 12U));
    to.push_back(static_cast<char8_t>(0x80U | (point >> 6U & 0x3FU)));
    to.push_back(static_cast<char8_t>(0x80U | (point & 0x3FU)));
  }
}

constexpr bool is_latin_small(unsigned char c) { return c >= 0xE0 && c != 0xF7 && c != 0xFF; }
constexpr bool is_c1_small(unsigned char c) { return c == 0x9A || c == 0x9C || c == 0x9E; }

bool is_ascii(const auto& text) {
  return std::all_of(text.begin(), text.end(), [](auto c) { return (c & 0x80) == 0; });
}

constexpr char upper_form(unsigned char byte) {
  if ((byte >= 'a' && byte <= 'z') || is_latin_small(byte)) return static_cast<char>(byte - 0x20);
  if (is_c1_small(byte)) return static_cast<char>(byte - 0x10);
  if (byte == 0xFF) return static_cast<char>(0x9F);
  return static_cast<char>(byte);
}

struct case_tables {
  std::array<char, 256> upper = {};
  std::array<char, 256> lower = {};
};

constexpr case_tables cases = [] {
  case_tables tables;
  for (std::size_t byte = 0; byte < 256; ++byte) tables.lower[byte] = static_cast<char>(byte);
  for (std::size_t byte = 0; byte < 256; ++byte) {
    const char upper = upper_form(static_cast<unsigned char>(byte));
    tables.upper[byte] = upper;
    if (upper != static_cast<char>(byte)) {
      tables.lower[static_cast<unsigned char>(upper)] = static_cast<char>(byte);
    }
  }
  return tables;
}();

std::string mapped(std::string_view text, const std::array<char, 256>& table) {
  std::string result(text);
  for (char& c : result) c = table[static_cast<unsigned char>(c)];
  return result;
}

}  // namespace

std::u8string to_utf8(std::string_view text) {
  if (is_ascii(text)) return as_utf8(text);
  std::u8string utf8;
  utf8.reserve(text.size());
  for (const char c : text) append_utf8(utf8, code_point(static_cast<unsigned char>(c)));
  return utf8;
}

std::optional<std::string> from_utf8(std::u8string_view utf8) {
  if (is_ascii(utf8)) return as_bytes(utf8);
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::optional<char> byte = byte_of(take_code_point(utf8));
    if (!byte) return std::nullopt;
    text.push_back(*byte);
  }
  return text;
}

std::string from_utf8_lossy(std::u8string_view utf8) {
  std::string text;
  while (!utf8.empty()) text.push_back(byte_of(take_code_point(utf8)).value_or('?'));
  return text;
}

char upper_case(char c) { return cases.upper[static_cast<unsigned char>(c)]; }
std::string upper_case(std::string_view text) { return mapped(text, cases.upper); }
std::string lower_case(std::string_view text) { return mapped(text, cases.lower); }

}  // namespace files
