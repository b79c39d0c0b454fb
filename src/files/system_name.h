#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Names of files and folders: the code page in the tool, Unicode on the system.
namespace files {

// Converts any text; the system may still refuse the name when it is used.
std::filesystem::path system_name(std::string_view text);

// Convert a path from and to UTF-8.
std::filesystem::path path_of_utf8(std::string_view text);
std::string utf8_of(const std::filesystem::path& path);

// Returns nullopt if the code page cannot represent the name.
std::optional<std::string> name_as_text(const std::filesystem::path::string_type& name);
// The same with "?" for each character that the code page lacks.
std::string name_as_text_lossy(const std::filesystem::path::string_type& name);

}  // namespace files
