#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "files/case_insensitive_lookup.h"
#include "files/drives.h"
#include "files/file_path.h"

// Paths of the tool are "\"-separated and begin with a drive letter, such as "C:\icons\a.shp".
namespace files {

// `folder` with a "\" behind it unless it ends in one.
std::string with_separator(std::string_view folder);

// The whole path, drive first, for a path that may lack its drive or start at the current folder;
// "." and ".." are resolved and a root keeps its "\" at the end. A drive's text as the drive list
// shows it, such as "c: [home]", gives the current folder of that drive. Throws file_error if what
// stands before the colon is no letter.
std::string full_path(const std::string& path);

// The letter of the drive that a path or a drive's text names, upper case; 0 if it names none.
char drive_letter(std::string_view path);

// The drive that a path or a drive's text names. Throws file_error if there is none.
const drive& drive_of(const std::string& path);

// The system's path for a path of the tool. Names compare without regard to case: an exact match
// first, else one that differs in case only; a name that does not exist yet stays as given. Throws
// file_error if there is no such drive.
std::filesystem::path system_path(const std::string& path);
std::filesystem::path system_path(const std::string& path, case_insensitive_lookup& names);
// The same with the path as it was given, for messages.
file_path on_drives(const std::string& path);
file_path on_drives(const std::string& path, case_insensitive_lookup& names);

// A file of that name in the current folder of the process, even if the folder's path has no form
// in the code page.
file_path in_current_folder(const std::string& name);

// The current folder of the process, as a path of the tool; "C:\" if it has no form in the code
// page.
std::string current_folder();

// The path of the tool for a path of this system; empty if it has no form in the code page.
std::string to_tool_path(const std::filesystem::path& path);

}  // namespace files
