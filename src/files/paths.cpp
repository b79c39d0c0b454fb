#include "files/paths.h"

#include <algorithm>
#include <vector>

#include "files/code_page.h"
#include "files/file_error.h"
#include "files/system_calls.h"
#include "files/system_name.h"

namespace files {

namespace {

namespace fs = std::filesystem;

bool is_separator(char c) { return c == '\\' || c == '/'; }

// Appends the names of a path to `names` and resolves "." and "..".
void append_names(std::vector<std::string>& names, std::string_view path) {
  while (!path.empty()) {
    const auto at = std::find_if(path.begin(), path.end(), is_separator);
    const std::string name(path.begin(), at);
    path.remove_prefix(name.size() + (at == path.end() ? 0 : 1));
    if (name.empty() || name == ".") continue;
    if (name != "..") {
      names.push_back(name);
    } else if (!names.empty()) {
      names.pop_back();
    }
  }
}

bool is_drive_text(const std::string& path, char letter) {
  const drive* named = find_drive(letter);
  return named != nullptr && drive_text(*named) == path;
}

[[noreturn]] void throw_missing_drive(const std::string& path) {
  throw file_error(file_error_number::device_unavailable, file_action::find, to_utf8(path),
                   "there is no such drive");
}

constexpr bool is_windows = fs::path::preferred_separator == '\\';

std::vector<std::string> names_of(const std::string& whole_path) {
  std::vector<std::string> names;
  append_names(names, std::string_view(whole_path).substr(2));
  return names;
}

// On Windows a colon in a name would mean another drive or an alternate data stream.
fs::path find_name(const fs::path& folder, const std::string& name, const std::string& whole,
                   case_insensitive_lookup& names) {
  if (is_windows && name.find(':') != name.npos) {
    throw file_error(file_error_number::bad_file_name, file_action::find, to_utf8(whole),
                     "it contains a name with a colon");
  }
  return names.find(folder, name);
}

fs::path find_folder(const std::string& whole, case_insensitive_lookup& names) {
  fs::path path = drive_of(whole).folder;
  for (const std::string& name : names_of(whole)) path = find_name(path, name, whole, names);
  return path;
}

// `path` relative to `folder`, or nullopt if it is outside.
std::optional<fs::path> inside(const fs::path& path, const fs::path& folder) {
  const fs::path rest = path.lexically_relative(folder);
  if (rest.empty() || *rest.begin() == "..") return std::nullopt;
  return rest;
}

}  // namespace

std::string with_separator(std::string_view folder) {
  std::string whole(folder);
  if (whole.empty() || whole.back() != '\\') whole += '\\';
  return whole;
}

char drive_letter(std::string_view path) {
  if (path.empty()) return 0;
  const char letter = upper_case(path.front());
  const bool is_drive = letter >= 'A' && letter <= 'Z' && (path.size() == 1 || path[1] == ':');
  return is_drive ? letter : '\0';
}

const drive& drive_of(const std::string& path) {
  const drive* named = find_drive(drive_letter(path));
  if (named == nullptr) throw_missing_drive(path);
  return *named;
}

std::string full_path(const std::string& path) {
  std::string_view rest = path;
  char letter = 0;
  if (path.size() > 1 && path[1] == ':') {
    letter = drive_letter(path);
    if (letter == 0) throw_missing_drive(path);
    rest.remove_prefix(2);
    if (is_drive_text(path, letter)) rest = {};
  }
  std::vector<std::string> names;
  const bool from_root = !rest.empty() && is_separator(rest.front());
  if (letter == 0 || !from_root) {
    const std::string current = current_folder();
    if (letter == 0) letter = current[0];
    if (!from_root && letter == current[0]) names = names_of(current);
  }
  append_names(names, rest);
  std::string whole = {letter, ':', '\\'};
  for (const std::string& name : names) {
    if (whole.back() != '\\') whole += '\\';
    whole += name;
  }
  return whole;
}

fs::path system_path(const std::string& path, case_insensitive_lookup& names) {
  const std::string whole = full_path(path);
  const std::size_t name_at = whole.rfind('\\') + 1;
  const std::string name = whole.substr(name_at);
  const std::string folder = whole.substr(0, name_at);
  auto known = names.known_folders.find(folder);
  if (known == names.known_folders.end()) {
    known = names.known_folders.emplace(folder, find_folder(folder, names)).first;
  }
  return name.empty() ? known->second : find_name(known->second, name, whole, names);
}

fs::path system_path(const std::string& path) {
  case_insensitive_lookup names;
  return system_path(path, names);
}

file_path to_file_path(const std::string& path, case_insensitive_lookup& names) {
  return {system_path(path, names), to_utf8(path)};
}

file_path to_file_path(const std::string& path) { return {system_path(path), to_utf8(path)}; }

file_path in_current_folder(const std::string& name) {
  if (!current_folder_override().empty()) return to_file_path(name);
  std::error_code failed;
  const fs::path folder = fs::current_path(failed);
  if (failed) fail(to_utf8(name), file_action::find, -errno_number(failed));
  return {case_insensitive_lookup().find(folder, name), to_utf8(name)};
}

file_path from_system_path(const fs::path& path) {
  const std::string shown = to_tool_path(path);
  return {path, shown.empty() ? path.u8string() : to_utf8(shown)};
}

std::string current_folder() {
  if (!current_folder_override().empty()) return current_folder_override();
  std::error_code failed;
  const std::string current = to_tool_path(fs::current_path(failed));
  return current.empty() ? "C:\\" : current;
}

std::string to_tool_path(const fs::path& path) {
  const drive* nearest = nullptr;
  fs::path rest;
  for (const drive& d : drives()) {
    const std::optional<fs::path> from_drive = inside(path, d.folder);
    const bool nearer =
        nearest == nullptr || d.folder.native().size() > nearest->folder.native().size();
    if (!from_drive || !nearer) continue;
    nearest = &d;
    rest = *from_drive;
  }
  if (nearest == nullptr) return {};
  std::string whole = {nearest->letter, ':', '\\'};
  for (const fs::path& step : rest) {
    if (step == ".") continue;
    const std::optional<std::string> name = name_as_text(step.native());
    if (!name || name->find('\\') != std::string::npos) return {};
    if (whole.back() != '\\') whole += '\\';
    whole += *name;
  }
  return whole;
}

}  // namespace files
