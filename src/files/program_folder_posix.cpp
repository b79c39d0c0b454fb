#include "files/program_folder.h"

namespace files {

std::filesystem::path program_folder() {
  std::error_code failed;
  return std::filesystem::read_symlink("/proc/self/exe", failed).parent_path();
}

}  // namespace files
