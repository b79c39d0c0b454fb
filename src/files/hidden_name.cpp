#include "files/hidden_name.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <string>

#include "files/code_page.h"
#include "files/system_name.h"

namespace files {

namespace {

namespace fs = std::filesystem;

// Leaves room for the dot, the time stamp and the ending within the usual limit of 255 bytes.
constexpr std::size_t max_kept_name = 200;
constexpr std::string_view temporary_ending = ".new";

std::string hexadecimal(std::uint64_t number) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (; number != 0; number >>= 4U) text.push_back(digits[number & 15U]);
  return text;
}

// In upper case, so that names that differ in case only share their hidden files.
fs::path::string_type stem_of(const fs::path& target) {
  fs::path name = target.filename();
  if (const auto text = name_as_text(name.native())) name = system_name(upper_case(*text));
  return fs::path(".").native() + name.native().substr(0, max_kept_name);
}

}  // namespace

fs::path hidden_beside(const fs::path& target, std::string_view ending) {
  return target.parent_path() / (stem_of(target) + fs::path(ending).native());
}

fs::path temporary_beside(const fs::path& target) {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  std::string ending = "." + hexadecimal(static_cast<std::uint64_t>(now));
  return hidden_beside(target, ending.append(temporary_ending));
}

bool is_temporary_of(const fs::path& target, const fs::path& name) {
  const fs::path::string_type stem = stem_of(target);
  const fs::path::string_type ending = fs::path(temporary_ending).native();
  const fs::path::string_type& text = name.native();
  if (text == stem + ending) return true;  // an earlier version's
  if (text.size() <= stem.size() + 1 + ending.size()) return false;
  const auto digits = text.begin() + static_cast<std::ptrdiff_t>(stem.size()) + 1;
  const auto is_digit = [](auto c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
  return text.starts_with(stem) && text[stem.size()] == '.' && text.ends_with(ending) &&
         std::all_of(digits, text.end() - static_cast<std::ptrdiff_t>(ending.size()), is_digit);
}

}  // namespace files
