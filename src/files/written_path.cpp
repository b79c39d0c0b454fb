#include "files/written_path.h"

namespace files {

// Resolves a limited number of links, as they may form a cycle.
std::filesystem::path written_path(const std::filesystem::path& path) {
  constexpr int max_links = 40;
  std::filesystem::path target = path;
  for (int links = 0; links < max_links; ++links) {
    std::error_code failed;
    const std::filesystem::path next = std::filesystem::read_symlink(target, failed);
    if (failed) break;
    target = target.parent_path() / next;
  }
  return target;
}

}  // namespace files
