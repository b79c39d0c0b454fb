#pragma once

#include <filesystem>
#include <string>

namespace files {

// Where a file is on the system, and how messages name it.
struct file_path {
  std::filesystem::path system;
  std::string shown;
};

}  // namespace files
