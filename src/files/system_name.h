#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Names of files and folders: the code page in the tool, Unicode on the system.
namespace files {

// Converts any text; the system may still refuse the name when it is used.
std::filesystem::path system_name(std::string_view text);

// Returns nullopt if the code page cannot represent the name.
std::optional<std::string> name_as_text(const std::filesystem::path::string_type& name);
// The same with "?" for each character that the code page lacks.
std::string name_as_text_lossy(const std::filesystem::path::string_type& name);

}  // namespace files
