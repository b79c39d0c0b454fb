#include "files/case_insensitive_lookup.h"

#include <unordered_map>
#include <utility>
#include <vector>

#include "files/code_page.h"
#include "files/file_calls.h"
#include "files/system_name.h"

namespace files {

namespace {

namespace fs = std::filesystem;

// A few names are looked up one by one; for more of them the whole folder is read, once.
constexpr int asked_one_by_one = 8;

struct remembered_folder {
  int asked = 0;
  bool is_read = false;
  // The names in it by their upper-case form.
  std::unordered_map<std::string, fs::path::string_type> names;
};

std::unordered_map<fs::path::string_type, remembered_folder> remembered;
std::unordered_map<std::string, fs::path> remembered_places;

void read_names(remembered_folder& known, const fs::path& folder) {
  if (std::exchange(known.is_read, true)) return;
  std::vector<listed_entry> listed;
  file_calls::list(folder, listed);
  for (const listed_entry& found : listed) {
    const std::optional<std::string> text = name_as_text(found.name);
    if (!text) continue;
    // Of several names that differ in case only the first by code value stands for all.
    const auto [entry, is_new] = known.names.emplace(upper_case(*text), found.name);
    if (!is_new && found.name < entry->second) entry->second = found.name;
  }
}

bool is_there(const fs::path& place) {
  std::error_code failed;
  return fs::exists(fs::symlink_status(place, failed));
}

}  // namespace

fs::path find_in_folder(const fs::path& folder, const std::string& name) {
  const fs::path as_given = system_name(name);
  fs::path exact = folder / as_given;
  remembered_folder& known = remembered[folder.native()];
  const bool one_by_one = !known.is_read && ++known.asked <= asked_one_by_one;
  if (one_by_one && is_there(exact)) return exact;
  read_names(known, folder);
  const auto found = known.names.find(upper_case(name));
  if (found == known.names.end() || found->second == as_given.native() || is_there(exact)) {
    return exact;
  }
  fs::path other_case = folder / found->second;
  if (is_there(other_case)) return other_case;
  // It was deleted meanwhile. Another spelling of it may be there.
  known = {};
  read_names(known, folder);
  const auto left = known.names.find(upper_case(name));
  return left == known.names.end() ? exact : folder / left->second;
}

const fs::path* remembered_place(const std::string& folder) {
  const auto known = remembered_places.find(folder);
  return known == remembered_places.end() ? nullptr : &known->second;
}

const fs::path& remember_place(const std::string& folder, fs::path place) {
  return remembered_places.insert_or_assign(folder, std::move(place)).first->second;
}

void remember_file(const fs::path& path) {
  try {
    const auto known = remembered.find(path.parent_path().native());
    if (known == remembered.end() || !known->second.is_read) return;
    if (const std::optional<std::string> text = name_as_text(path.filename().native())) {
      known->second.names.emplace(upper_case(*text), path.filename().native());
    }
  } catch (const std::bad_alloc&) {
    forget_folders();
  }
}

void forget_folders() {
  remembered.clear();
  remembered_places.clear();
}

}  // namespace files
