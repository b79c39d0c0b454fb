#pragma once

#include <filesystem>
#include <string>

namespace files {

// The system path of a file, and the path that messages show.
struct file_path {
  std::filesystem::path system;
  std::u8string shown;
};

}  // namespace files
