#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// Names of files and folders: text in the tool, Unicode on the system.
namespace files {

// Any text gives a name; whether the system takes it is seen when it is used.
std::filesystem::path system_name(std::string_view text);

// Nothing if the name has no form in the code page.
std::optional<std::string> name_as_text(const std::filesystem::path::string_type& name);
// With "?" for each character that the code page lacks.
std::string name_as_text_lossy(const std::filesystem::path::string_type& name);

}  // namespace files
