#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "files/scratch_file.h"

namespace files {

namespace fs = std::filesystem;

int open_scratch(fs::path& path) {
  std::error_code failed;
  std::string name = (fs::temp_directory_path(failed) / "ostrane-dat-XXXXXX").string();
  const int file = mkostemp(name.data(), O_CLOEXEC);
  if (file < 0) return -errno;
  unlink(name.c_str());
  path = "/dev/fd/" + std::to_string(file);
  return file;
}

}  // namespace files
