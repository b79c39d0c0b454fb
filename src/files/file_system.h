#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "files/file_path.h"

// Queries about files and folders. Paths are tool paths, see paths.h.
namespace files {

// False on any error, such as a missing drive or lack of permission. A folder is not a file.
bool file_exists(const std::string& path);
bool folder_exists(const std::string& path);

// In bytes. Throws file_error.
std::int64_t file_size(const file_path& path);
// Throws file_error, also if the folder exists already.
void create_folder(const std::string& path);

// The folders or the regular files in a folder, sorted by their upper-case form. Hidden names and
// names that the code page cannot represent are left out. Both throw file_error.
std::vector<std::string> folders_in(const std::string& path);
std::vector<std::string> files_in(const std::string& path);
std::vector<std::string> files_in(const file_path& folder);

struct unlisted_file {
  std::string name;  // "?" replaces a character that the code page lacks
  std::filesystem::path path;
  const char* reason;  // a sentence fragment
};

// What a folder contains besides folders and the files with the paths `listed`, sorted by name,
// without the hidden files of copies of the tool that write there. `unknown` is the reason for a
// file that could be listed. Throws file_error.
std::vector<unlisted_file> unlisted_files_in(
    const file_path& folder, const std::vector<std::filesystem::path::string_type>& listed,
    const char* unknown = "it came after the files were listed");

}  // namespace files
