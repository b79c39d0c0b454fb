#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "files/case_insensitive_lookup.h"
#include "files/drives.h"
#include "files/file_path.h"

// Tool paths are what users see: "C:\icons\a.shp", in the code page, with "\" as separator ("/" is
// accepted too). System paths are those of the operating system.
namespace files {

// `folder` with a "\" at its end.
std::string with_separator(std::string_view folder);

// Makes a tool path absolute, "C:\a\b" or "C:\", and resolves "." and "..". Without a drive it is
// relative to the current folder. The text of a drive list's row, such as "c: [home]", means the
// current folder of that drive, as "c:" does. Throws file_error if the character before the colon
// is not a letter.
std::string full_path(const std::string& path);

// The drive letter of a tool path or of a drive list's row, in upper case; 0 if it has none.
char drive_letter(std::string_view path);

// The drive of a tool path or of a drive list's row. Throws file_error if it does not exist.
const drive& drive_of(const std::string& path);

// The system path of a tool path. Each name keeps its exact spelling if that exists, else becomes
// one that differs in case only, else stays as given. Throws file_error if the drive does not
// exist. For many paths pass the same `names`, which caches lookups.
std::filesystem::path system_path(const std::string& path);
std::filesystem::path system_path(const std::string& path, case_insensitive_lookup& names);
// The same, with `path` as the path for messages.
file_path to_file_path(const std::string& path);
file_path to_file_path(const std::string& path, case_insensitive_lookup& names);

// A file in the current folder of the process. Works also if the code page cannot represent the
// folder's path. Throws file_error if the folder does not exist any more.
file_path in_current_folder(const std::string& name);

// A path of the system, which messages show as a tool path if it has one.
file_path from_system_path(const std::filesystem::path& path);

// The current folder of the process as a tool path; "C:\" if it has none.
std::string current_folder();

// The tool path of an absolute system path, on the drive with the nearest root; "" if no drive
// contains it or the code page cannot represent it.
std::string to_tool_path(const std::filesystem::path& path);

}  // namespace files
