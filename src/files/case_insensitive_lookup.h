#pragma once

#include <filesystem>
#include <string>

namespace files {

// The place of `name` in `folder`: the exact name if it is there, else one that differs in case
// only, else the name as given. A folder is read once at most
// and remembered until forget_folders.
std::filesystem::path find_in_folder(const std::filesystem::path& folder, const std::string& name);

// The place of a folder of the tool that was looked up before, or null; and keeping it.
const std::filesystem::path* remembered_place(const std::string& folder);
const std::filesystem::path& remember_place(const std::string& folder, std::filesystem::path place);

// A file has come into being at `place`; what is remembered of its folder takes it in.
void remember_file(const std::filesystem::path& place);

// To be called when somebody else may have changed the folders meanwhile.
void forget_folders();

}  // namespace files
