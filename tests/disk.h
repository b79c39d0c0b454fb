#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

// Files and folders by the system's paths.
namespace ostrane {

namespace fs = std::filesystem;

using texts = std::vector<std::string>;
using file_map = std::map<std::string, std::string>;  // bytes by name

// In memory if the system has a folder there, as the tool waits for disks.
inline fs::path make_temporary_folder() {
  const fs::path memory = "/dev/shm";
  const fs::path base = fs::is_directory(memory) ? memory : fs::temp_directory_path();
  std::random_device any;
  fs::path made;
  do {
    made = base / ("tool-test-" + std::to_string(any()));
  } while (!fs::create_directory(made));
  return fs::absolute(made);  // with its drive, where the system has them
}

// Makes the folder of the file too.
inline void write_bytes(const fs::path& file, const std::string& bytes) {
  fs::create_directories(fs::absolute(file).parent_path());
  std::ofstream stream(file, std::ios::binary);
  stream.exceptions(std::ios::failbit | std::ios::badbit);
  stream << bytes << std::flush;
}

inline std::string bytes_of(const fs::path& file) {
  std::ostringstream bytes;
  bytes << std::ifstream(file, std::ios::binary).rdbuf();
  return bytes.str();
}

inline std::string utf8_name(const fs::path& file) {
  const std::u8string name = file.filename().u8string();
  return {name.begin(), name.end()};
}

// The normal files in a folder by their UTF-8 names, hidden ones too.
inline file_map files_at(const fs::path& folder) {
  file_map all;
  for (const auto& found : fs::directory_iterator(folder)) {
    if (found.is_regular_file()) all[utf8_name(found)] = bytes_of(found);
  }
  return all;
}

}  // namespace ostrane
