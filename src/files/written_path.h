#pragma once

#include <filesystem>

namespace files {

// The path of the file that is replaced when `path` is written: links are resolved, and an existing
// file whose name differs in case only is found. The file need not exist.
std::filesystem::path written_path(const std::filesystem::path& path);

}  // namespace files
