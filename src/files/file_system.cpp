#include "files/file_system.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "files/binary_file.h"
#include "files/code_page.h"
#include "files/file_error.h"
#include "files/paths.h"
#include "files/system_name.h"
#include "files/work_files.h"

namespace files {

namespace {

namespace fs = std::filesystem;

fs::file_status status_of(const std::string& path) {
  try {
    std::error_code failed;
    return fs::status(for_system(system_path(path)), failed);
  } catch (const file_error&) {
    return {};
  }
}

// std::string compares by unsigned bytes.
void sort_by_upper_case(std::vector<std::string>& names) {
  std::vector<std::pair<std::string, std::string>> keyed;
  keyed.reserve(names.size());
  for (std::string& name : names) keyed.emplace_back(upper_case(name), std::move(name));
  std::sort(keyed.begin(), keyed.end());
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = std::move(keyed[i].second);
}

std::vector<listed_entry> listed_in(const file_path& folder) {
  std::vector<listed_entry> listed;
  const int failed = system_calls.list(folder.system, listed);
  if (failed < 0) fail(folder.shown, file_action::read, failed);
  return listed;
}

// Why the lists leave an entry out, or "". `name` is its name in the code page, if it has one.
const char* unlisted_reason(const listed_entry& entry, const std::optional<std::string>& name) {
  if (!name) return "its name has characters that the code page lacks";
  if (name->find('\\') != name->npos) return "its name contains a path separator";
  return entry.is_hidden ? "it is hidden" : "";
}

const char* irregular_reason(const fs::path& shown) {
  std::error_code failed;
  const fs::path path = for_system(shown);
  const bool is_link = fs::is_symlink(fs::symlink_status(path, failed));
  return is_link && !fs::exists(fs::status(path, failed)) ? "it is a link that leads nowhere"
                                                          : "it is not a regular file";
}

using native_view = std::basic_string_view<fs::path::value_type>;
using paths_by_name = std::unordered_multimap<std::string, native_view>;  // in upper case

native_view last_name(native_view path) {
  return path.substr(path.rfind(fs::path::preferred_separator) + 1);
}

paths_by_name named_paths(const std::vector<fs::path::string_type>& paths) {
  paths_by_name named;
  for (const native_view path : paths) {
    named.emplace(upper_case(name_as_text_lossy(fs::path::string_type(last_name(path)))), path);
  }
  return named;
}

// A file system can find a file under another case than the listed one.
bool is_listed_in_other_case(const paths_by_name& by_name, const std::string& name,
                             const fs::path& path) {
  const auto [first, last] = by_name.equal_range(upper_case(name));
  return std::any_of(first, last, [&path](const auto& other) {
    std::error_code failed;
    return fs::equivalent(for_system(fs::path(other.second)), for_system(path), failed);
  });
}

std::vector<std::string> sorted_names(const file_path& folder, bool listed_entry::*is_wanted) {
  std::vector<std::string> names;
  for (const listed_entry& entry : listed_in(folder)) {
    if (!(entry.*is_wanted)) continue;
    std::optional<std::string> name = name_as_text(entry.name);
    if (*unlisted_reason(entry, name) == '\0') names.push_back(std::move(*name));
  }
  sort_by_upper_case(names);
  return names;
}

}  // namespace

bool file_exists(const std::string& path) {
  const fs::file_status status = status_of(path);
  return fs::exists(status) && !fs::is_directory(status);
}

bool folder_exists(const std::string& path) { return fs::is_directory(status_of(path)); }

std::int64_t file_size(const file_path& path) {
  std::error_code failed;
  const std::uintmax_t bytes = fs::file_size(for_system(path.system), failed);
  if (failed == std::errc::not_supported) binary_file().open_to_read(path);  // throws its kind
  if (failed) fail(path.shown, file_action::read, -errno_number(failed));
  return static_cast<std::int64_t>(bytes);
}

void create_folder(const std::string& path) {
  std::error_code failed;
  if (!fs::create_directory(for_system(system_path(path)), failed) && !failed) {
    failed = std::make_error_code(std::errc::file_exists);
  }
  if (failed) fail(to_utf8(path), file_action::create, -errno_number(failed));
}

std::vector<std::string> folders_in(const std::string& path) {
  return sorted_names(to_file_path(path), &listed_entry::is_folder);
}

std::vector<std::string> files_in(const std::string& path) { return files_in(to_file_path(path)); }

std::vector<std::string> files_in(const file_path& folder) {
  return sorted_names(folder, &listed_entry::is_file);
}

std::vector<unlisted_file> unlisted_files_in(const file_path& folder,
                                             const std::vector<fs::path::string_type>& listed,
                                             const char* unknown) {
  std::optional<paths_by_name> by_name;  // null until it is needed
  std::unordered_set<native_view> exact;
  exact.reserve(listed.size());
  for (const native_view path : listed) exact.insert(last_name(path));
  std::vector<unlisted_file> unlisted;
  for (const listed_entry& entry : listed_in(folder)) {
    if (entry.is_folder || exact.contains(entry.name) || is_work_file(entry.name)) continue;
    const fs::path path = folder.system / entry.name;
    const std::optional<std::string> name = name_as_text(entry.name);
    const char* reason = unlisted_reason(entry, name);
    if (*reason == '\0' && !entry.is_file) reason = irregular_reason(path);
    if (*reason == '\0') {
      if (!by_name) by_name = named_paths(listed);
      if (is_listed_in_other_case(*by_name, *name, path)) continue;
      reason = unknown;
    }
    unlisted.push_back({name ? *name : name_as_text_lossy(entry.name), path, reason});
  }
  std::sort(unlisted.begin(), unlisted.end(),
            [](const auto& a, const auto& b) { return a.name < b.name; });
  return unlisted;
}

}  // namespace files
