#include "platform/file_system.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include "platform/case_blind.h"
#include "platform/code_page.h"
#include "platform/file_calls.h"
#include "platform/file_error.h"
#include "platform/paths.h"
#include "platform/system_name.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& path, const std::error_code& reason, const char* what) {
  const int number = file_calls::errno_number(reason);
  throw file_error{file_calls::error_number(number),
                   path + what + file_calls::error_words(number) + "."};
}

fs::file_status status_of(const std::string& path) {
  try {
    std::error_code failed;
    return fs::status(system_path(path), failed);
  } catch (const file_error&) {
    return {};
  }
}

void sort_folded(std::vector<std::string>& names) {
  std::vector<std::pair<std::string, std::string>> keyed;
  keyed.reserve(names.size());
  for (std::string& name : names) keyed.emplace_back(upper_case(name), std::move(name));
  const auto by_bytes = [](const std::string& a, const std::string& b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
      return static_cast<unsigned char>(x) < static_cast<unsigned char>(y);
    });
  };
  std::sort(keyed.begin(), keyed.end(), [&](const auto& a, const auto& b) {
    return a.first == b.first ? by_bytes(a.second, b.second) : by_bytes(a.first, b.first);
  });
  for (std::size_t i = 0; i < names.size(); ++i) names[i] = std::move(keyed[i].second);
}

std::vector<std::string> sorted_names(const std::string& path, bool listed_entry::*is_wanted) {
  std::vector<listed_entry> listed;
  const int failed = file_calls::list(system_path(path), listed);
  if (failed < 0) fail(path, {-failed, std::generic_category()}, " cannot be read: ");
  std::vector<std::string> names;
  for (const listed_entry& entry : listed) {
    if (entry.is_hidden || !(entry.*is_wanted)) continue;
    std::optional<std::string> name = name_as_text(entry.name);
    // A name that cannot stand in a path of the tool is of no use to it.
    if (name && name->find('\\') == name->npos) names.push_back(std::move(*name));
  }
  sort_folded(names);
  return names;
}

}  // namespace

bool file_exists(const std::string& path) {
  const fs::file_status status = status_of(path);
  return fs::exists(status) && !fs::is_directory(status);
}

bool folder_exists(const std::string& path) { return fs::is_directory(status_of(path)); }

bool is_same_file(const std::string& path, const std::string& other) {
  std::error_code failed;
  return fs::equivalent(system_path(path), system_path(other), failed) && !failed;
}

std::int64_t file_size(const std::string& path) {
  std::error_code failed;
  const std::uintmax_t bytes = fs::file_size(system_path(path), failed);
  if (failed) fail(path, failed, " cannot be read: ");
  return static_cast<std::int64_t>(bytes);
}

void delete_file(const std::string& path) {
  const int deleted = file_calls::remove_file(system_path(path));
  if (deleted < 0) fail(path, {-deleted, std::generic_category()}, " cannot be deleted: ");
}

void create_folder(const std::string& path) {
  std::error_code failed;
  const fs::path place = system_path(path);
  if (!fs::create_directory(place, failed) && !failed) {
    failed = std::make_error_code(std::errc::file_exists);
  }
  if (failed) fail(path, failed, " cannot be made: ");
  forget_folders();
}

std::vector<std::string> folders_in(const std::string& path) {
  return sorted_names(path, &listed_entry::is_folder);
}

std::vector<std::string> files_in(const std::string& path) {
  return sorted_names(path, &listed_entry::is_file);
}

bool matches_pattern(const std::string& name, const std::string& pattern) {
  const std::string text = upper_case(name);
  const std::string wanted = upper_case(pattern);
  std::size_t at = 0;
  std::size_t in_pattern = 0;
  std::size_t star = std::string::npos;
  std::size_t star_ends = 0;
  while (at < text.size()) {
    const bool more = in_pattern < wanted.size();
    if (more && wanted[in_pattern] == '*') {
      star = in_pattern++;
      star_ends = at;
    } else if (more && (wanted[in_pattern] == '?' || wanted[in_pattern] == text[at])) {
      ++at;
      ++in_pattern;
    } else if (star != std::string::npos) {
      in_pattern = star + 1;
      at = ++star_ends;
    } else {
      return false;
    }
  }
  return wanted.find_first_not_of('*', in_pattern) == std::string::npos;
}

}  // namespace platform
