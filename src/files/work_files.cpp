#include "files/work_files.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string>

#include "files/code_page.h"
#include "files/failure.h"
#include "files/path_match.h"
#include "files/system_name.h"

namespace files {

namespace {

namespace fs = std::filesystem;
using native = fs::path::string_type;

// Leaves room for the dot, the time and the ending within the usual limit of 255 bytes.
constexpr std::size_t max_kept_name = 200;
constexpr std::size_t time_digits = 16;
const native lock_ending = fs::path(".lock").native();
const native new_ending = fs::path(".new").native();

native stem_of(const fs::path& target) {
  fs::path name = target.filename();
  if (const auto text = name_as_text(name.native())) name = system_name(upper_case(*text));
  const native& text = name.native();
  std::size_t kept = std::min(text.size(), max_kept_name);
  // A name is not cut within a character of UTF-8, which some file systems refuse.
  while (kept > 0 && kept < text.size() && (text[kept] & 0xC0) == 0x80) --kept;
  return fs::path(".").native() + text.substr(0, kept);
}

// `name` without `ending`, or "" if that is not the stem of a target.
native stem_before(const native& name, std::size_t ending) {
  if (name.size() < ending + 2 || name.front() != '.') return {};
  native stem = name.substr(0, name.size() - ending);
  return stem_of(stem.substr(1)) == stem ? stem : native();
}

// The stem of a file of new content, or "".
native stem_of_new(const native& name) {
  const std::size_t ending = 1 + time_digits + new_ending.size();
  if (!name.ends_with(new_ending) || name.size() < ending) return {};
  const native time = name.substr(name.size() - ending, 1 + time_digits);
  const auto is_hex_digit = [](auto c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); };
  if (time.front() != '.' || !std::all_of(time.begin() + 1, time.end(), is_hex_digit)) return {};
  return stem_before(name, ending);
}

// Removes a file unless another copy of the tool has locked it. A network drive may lock only what
// is open to write.
void remove_unlocked(const fs::path& path) {
  int file = system_calls.open_to_write(path);
  if (file < 0) file = system_calls.open_to_read(path);
  if (file < 0) return;
  if (system_calls.lock(file) >= 0 && match(path, file).is_same) system_calls.remove_file(path);
  system_calls.close_file(file);
}

}  // namespace

fs::path lock_beside(const fs::path& target) {
  return target.parent_path() / (stem_of(target) + lock_ending);
}

fs::path temporary_beside(const fs::path& target) {
  const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
  std::array<char, 1 + time_digits + 1> time = {};
  std::snprintf(time.data(), time.size(), ".%016llx", static_cast<unsigned long long>(now));
  return target.parent_path() / (stem_of(target) + fs::path(time.data()).native() + new_ending);
}

bool is_work_file(const fs::path& name) {
  const native& text = name.native();
  return !stem_of_new(text).empty() ||
         (text.ends_with(lock_ending) && !stem_before(text, lock_ending.size()).empty());
}

void clear_leftovers(const fs::path& folder, const std::vector<listed_entry>& listed) {
  for (const listed_entry& entry : listed) {
    const native stem = entry.is_file ? stem_of_new(entry.name) : native();
    if (stem.empty()) continue;
    remove_unlocked(folder / entry.name);
    remove_unlocked(folder / (stem + lock_ending));
  }
}

void clear_leftovers(const fs::path& folder) {
  ignore_failure([&folder] {
    std::vector<listed_entry> listed;
    system_calls.list(folder.empty() ? fs::path(".") : folder, listed);
    clear_leftovers(folder, listed);
  });
}

}  // namespace files
