#include "data/icon_export.h"

#include <array>
#include <cstdio>

#include "files/code_page.h"

namespace ostrane {

std::string stem_of_entry(const std::string& name) {
  constexpr std::size_t extension = 4;  // ".SHP"
  return name.size() > extension ? name.substr(0, name.size() - extension) : name;
}

std::vector<std::u8string> exported_files(picture_form form, const std::u8string& stem,
                                          std::size_t first, std::size_t last) {
  if (form == picture_form::gif) return {stem + u8".gif"};
  if (form == picture_form::picture) return {stem + u8".png"};
  if (form == picture_form::sheet) return {stem + u8".png", stem + u8".json"};
  std::vector<std::u8string> names = {stem + u8".json"};
  for (std::size_t number = first; number <= last; ++number) {
    names.push_back(png_name(stem, number));
  }
  return names;
}

std::u8string png_name(const std::u8string& stem, std::size_t number) {
  std::array<char, 16> digits = {};
  std::snprintf(digits.data(), digits.size(), "-%04zu.png", number);
  return stem + files::as_utf8(digits.data());
}

}  // namespace ostrane
