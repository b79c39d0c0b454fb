#include "platform/case_blind.h"

#include <map>
#include <unordered_map>

#include "platform/code_page.h"
#include "platform/system_name.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

// The names of a folder by their upper-case form.
using folded_names = std::unordered_map<std::string, fs::path::string_type>;
std::map<fs::path, folded_names> remembered;

const folded_names& names_in(const fs::path& folder) {
  const auto known = remembered.find(folder);
  if (known != remembered.end()) return known->second;
  folded_names& names = remembered[folder];
  std::error_code failed;
  for (fs::directory_iterator at(folder, failed), end; !failed && at != end; at.increment(failed)) {
    const fs::path::string_type name = at->path().filename().native();
    const std::optional<std::string> text = name_as_text(at->path());
    if (!text) continue;
    // Of several names that differ in case only the first by code value stands for all.
    const auto [entry, is_new] = names.emplace(upper_case(*text), name);
    if (!is_new && name < entry->second) entry->second = name;
  }
  return names;
}

bool is_there(const fs::path& place) {
  std::error_code failed;
  return fs::exists(fs::symlink_status(place, failed));
}

}  // namespace

fs::path find_in_folder(const fs::path& folder, const std::string& name) {
  fs::path exact = folder / system_name(name);
  if (is_there(exact)) return exact;
  const folded_names& names = names_in(folder);
  const auto known = names.find(upper_case(name));
  if (known == names.end()) return exact;
  fs::path other_case = folder / known->second;
  return is_there(other_case) ? other_case : exact;
}

void remember_file(const fs::path& place) {
  const auto known = remembered.find(place.parent_path());
  if (known == remembered.end()) return;
  if (const std::optional<std::string> text = name_as_text(place)) {
    known->second.emplace(upper_case(*text), place.filename().native());
  }
}

void forget_folders() { remembered.clear(); }

}  // namespace platform
