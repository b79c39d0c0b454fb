#pragma once

#include <filesystem>

namespace files {

// The folder of the executable, links resolved. "" if it is unknown.
std::filesystem::path program_folder();

}  // namespace files
