#include "write_file.h"

#include <fstream>
#include <stdexcept>

namespace ostrane {

void write_file(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file << bytes;
  file.close();
  if (!file) throw std::runtime_error(path.string() + " cannot be written");
}

}  // namespace ostrane
