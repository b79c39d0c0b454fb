#include "files/case_insensitive_lookup.h"

#include <new>
#include <utility>
#include <vector>

#include "files/code_page.h"
#include "files/system_calls.h"
#include "files/system_name.h"

namespace files {

namespace {

namespace fs = std::filesystem;

// The first lookups in a folder ask the system for the exact name. The next one reads the whole
// folder, which is faster for many names.
constexpr int max_single_lookups = 8;

}  // namespace

bool path_exists(const fs::path& path) {
  std::error_code failed;
  return fs::exists(fs::symlink_status(for_system(path), failed));
}

void case_insensitive_lookup::read_once(folder_names& known, const fs::path& folder) {
  if (std::exchange(known.is_read, true)) return;
  std::vector<listed_entry> listed;
  system_calls.list(folder, listed);
  for (const listed_entry& found : listed) {
    const std::optional<std::string> text = name_as_text(found.name);
    if (!text) continue;
    // If names differ in case only, the first by code value wins.
    const auto [entry, is_new] = known.names.emplace(upper_case(*text), found.name);
    if (!is_new && found.name < entry->second) entry->second = found.name;
  }
}

fs::path case_insensitive_lookup::find(const fs::path& folder, const std::string& name) {
  const fs::path as_given = system_name(name);
  fs::path exact = folder / as_given;
  // Windows ignores the case itself.
  if constexpr (fs::path::preferred_separator == '\\') return exact;
  folder_names& known = folders_[folder.native()];
  const bool is_single = !known.is_read && ++known.lookups <= max_single_lookups;
  if (is_single && path_exists(exact)) return exact;
  read_once(known, folder);
  // If no name is found, the caller may create this one.
  const auto [found, is_new] = known.names.emplace(upper_case(name), as_given.native());
  if (is_new || found->second == as_given.native() || path_exists(exact)) return exact;
  fs::path other_case = folder / found->second;
  if (path_exists(other_case)) return other_case;
  // The file was deleted after the folder was read. Another spelling may exist.
  known = {};
  read_once(known, folder);
  return folder / known.names.emplace(upper_case(name), as_given.native()).first->second;
}

fs::path existing_spelling(const fs::path& path) {
  const std::optional<std::string> name = name_as_text(path.filename().native());
  if (!name) return path;
  const fs::path folder = path.parent_path();
  const fs::path found = case_insensitive_lookup().find(folder.empty() ? "." : folder, *name);
  return found.filename() == path.filename() ? path : found;
}

}  // namespace files
