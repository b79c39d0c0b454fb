#pragma once

#include <filesystem>
#include <string>

namespace ostrane {

// Writes or replaces a file. Throws std::runtime_error.
void write_file(const std::filesystem::path& path, const std::string& bytes);

}  // namespace ostrane
