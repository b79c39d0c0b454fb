#pragma once

#include <cstdint>
#include <string>
#include <vector>

// The file-system service, on paths of the tool.
namespace platform {

// False too if the place cannot be looked at, and for a folder.
bool file_exists(const std::string& path);
bool folder_exists(const std::string& path);
// True if both paths lead to one file, also by links.
bool is_same_file(const std::string& path, const std::string& other);

// In bytes. Throws file_error.
std::int64_t file_size(const std::string& path);
// Read-only or not; a folder is no file. Throws file_error.
void delete_file(const std::string& path);
// Throws file_error, also if the folder is there already.
void create_folder(const std::string& path);

// The folders, or the normal files, in a folder, ascending by their upper-case form. Hidden names
// and names that have no form in the code page are left out. Both throw file_error.
std::vector<std::string> folders_in(const std::string& path);
std::vector<std::string> files_in(const std::string& path);

// True if `name` is what the pattern names, without regard to case; "*" stands for any characters,
// "?" for any one.
bool matches_pattern(const std::string& name, const std::string& pattern);

}  // namespace platform
