#include <windows.h>

#include <string>

#include "files/last_error.h"
#include "files/scratch_file.h"
#include "files/system_calls.h"

namespace files {

namespace fs = std::filesystem;

// The handle stays open, so that the system removes the file at the end of the process.
int open_scratch(fs::path& path) {
  static int number = 0;
  std::error_code failed;
  const fs::path folder = fs::temp_directory_path(failed);
  if (failed) return -errno_number(failed);
  path = folder / ("ostrane-dat-" + std::to_string(GetCurrentProcessId()) + "-" +
                   std::to_string(++number) + ".tmp");
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE | DELETE,
                                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                  CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  return file == INVALID_HANDLE_VALUE ? last_error()
                                      : static_cast<int>(reinterpret_cast<std::intptr_t>(file));
}

}  // namespace files
