#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "files/file_path.h"

// The file-system service, on paths of the tool.
namespace files {

// False also for a folder, and if the system does not tell.
bool file_exists(const std::string& path);
bool folder_exists(const std::string& path);

// In bytes. Throws file_error.
std::int64_t file_size(const file_path& path);
// Throws file_error, also if the folder exists already.
void create_folder(const std::string& path);

// The folders, or the normal files, in a folder, ascending by their upper-case form. Hidden names
// and names that have no form in the code page are left out. Both throw file_error.
std::vector<std::string> folders_in(const std::string& path);
std::vector<std::string> files_in(const std::string& path);
std::vector<std::string> files_in(const file_path& folder);

// The normal files in a folder that are not among those listed, and why, as the end of a sentence.
// Throws file_error.
struct unlisted_file {
  std::string name;  // "?" stands for a character that the code page lacks
  const char* reason;
};
std::vector<unlisted_file> unlisted_files_in(const std::string& path,
                                             const std::vector<std::string>& listed);
std::vector<unlisted_file> unlisted_files_in(const file_path& folder,
                                             const std::vector<std::string>& listed);

// True if `name` is what the pattern names, without regard to case; "*" stands for any characters,
// "?" for any one.
bool matches_pattern(const std::string& name, const std::string& pattern);

}  // namespace files
