#include "files/path_match.h"

#include <cerrno>

namespace files {

path_match match(const std::filesystem::path& path, const file_identity& identity) {
  file_info found;
  const int status = system_calls.info_at(path, found);
  if (status == -ENOENT || status == -ENOTDIR) return {};
  if (status < 0) return {.error = status};
  return {.is_same = found.stamp.identity == identity};
}

path_match match(const std::filesystem::path& path, int file) {
  file_info open;
  const int status = system_calls.info_of(file, open);
  if (status < 0) return {.error = status};
  return match(path, open.stamp.identity);
}

}  // namespace files
