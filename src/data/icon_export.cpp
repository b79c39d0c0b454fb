#include "data/icon_export.h"

#include <array>
#include <cstdio>

#include "files/code_page.h"

namespace ostrane {

std::string stem_of_entry(const std::string& name) {
  constexpr std::size_t extension = 4;  // ".SHP"
  return name.size() > extension ? name.substr(0, name.size() - extension) : name;
}

std::u8string png_name(const std::u8string& stem, std::size_t number) {
  std::array<char, 16> digits = {};
  std::snprintf(digits.data(), digits.size(), "-%04zu.png", number);
  return stem + files::as_utf8(digits.data());
}

}  // namespace ostrane
