#pragma once

#include <filesystem>
#include <string_view>

// Hidden files that stand beside a file while it is written.
namespace files {

// ".NAME" and the ending, in the folder of `target`; NAME is its name in upper case.
std::filesystem::path hidden_beside(const std::filesystem::path& target, std::string_view ending);

// A name for the new content of `target`, which no other copy of the tool uses.
std::filesystem::path temporary_beside(const std::filesystem::path& target);
// True if that is such a name.
bool is_temporary_of(const std::filesystem::path& target, const std::filesystem::path& name);

}  // namespace files
