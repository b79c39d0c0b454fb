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
constexpr std::string_view lock_ending = ".lock";

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
  const fs::path::string_type& text = name.native();
  std::size_t kept = std::min(text.size(), max_kept_name);
  // A name is not cut within a character of UTF-8, which some file systems refuse.
  while (kept > 0 && kept < text.size() && (text[kept] & 0xC0) == 0x80) --kept;
  return fs::path(".").native() + text.substr(0, kept);
}

// The part of a temporary file's name before its time stamp, or "" if it is none.
fs::path::string_type stem_of_temporary(const fs::path::string_type& name) {
  const fs::path::string_type ending = fs::path(temporary_ending).native();
  if (!name.ends_with(ending)) return {};
  const auto is_digit = [](auto c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
  std::size_t at = name.size() - ending.size();
  while (at > 0 && is_digit(name[at - 1])) --at;
  const bool has_stamp = at > 1 && at < name.size() - ending.size() && name[at - 1] == '.';
  return has_stamp ? name.substr(0, at - 1) : fs::path::string_type();
}

bool starts_with_dot(const fs::path& name) { return name.native().starts_with('.'); }

}  // namespace

fs::path lock_beside(const fs::path& target) {
  return target.parent_path() / (stem_of(target) + fs::path(lock_ending).native());
}

fs::path temporary_beside(const fs::path& target) {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  std::string ending = "." + hexadecimal(static_cast<std::uint64_t>(now));
  ending.append(temporary_ending);
  return target.parent_path() / (stem_of(target) + fs::path(ending).native());
}

bool is_temporary_of(const fs::path& target, const fs::path& name) {
  if (!starts_with_dot(name)) return false;
  const fs::path::string_type stem = stem_of(target);
  // Version 1 used names without a time stamp.
  const bool is_old = name.native() == stem + fs::path(temporary_ending).native();
  return is_old || stem_of_temporary(name.native()) == stem;
}

bool is_work_file(const fs::path& name) {
  if (!starts_with_dot(name)) return false;
  const fs::path::string_type& text = name.native();
  const fs::path::string_type ending = fs::path(lock_ending).native();
  fs::path::string_type stem = stem_of_temporary(text);
  if (text.ends_with(ending)) stem = text.substr(0, text.size() - ending.size());
  return stem.size() > 1 && stem_of(stem.substr(1)) == stem;
}

}  // namespace files
