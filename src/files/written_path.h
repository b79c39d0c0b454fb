#pragma once

#include <filesystem>

namespace files {

// The path of the file that is written if the links at `path` are resolved. The file need not
// exist.
std::filesystem::path written_path(const std::filesystem::path& path);

}  // namespace files
