#include <windows.h>

#include <string>

#include "files/program_folder.h"

namespace files {

std::filesystem::path program_folder() {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return std::filesystem::path(path).parent_path();
}

}  // namespace files
