#pragma once

#include <filesystem>

namespace files {

// The folder of the program's file, links resolved. "" if the system does not tell it.
std::filesystem::path program_folder();

}  // namespace files
