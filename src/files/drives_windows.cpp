#include <windows.h>

#include <array>

#include "files/code_page.h"
#include "files/drives.h"

namespace files {

namespace {

std::u8string utf8_of(const wchar_t* text) {
  std::array<char, 3 * (MAX_PATH + 1)> utf8 = {};
  WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), utf8.size(), nullptr, nullptr);
  return as_utf8(utf8.data());
}

// Only fixed disks have a label: other drives can take seconds to answer.
std::string label_of(const wchar_t* root) {
  std::array<wchar_t, MAX_PATH + 1> label = {};
  if (GetDriveTypeW(root) != DRIVE_FIXED) return "";
  GetVolumeInformationW(root, label.data(), label.size(), nullptr, nullptr, nullptr, nullptr, 0);
  return from_utf8_lossy(utf8_of(label.data()));
}

}  // namespace

std::vector<drive> system_drives() {
  // An access to a drive without a medium then fails instead of asking the user for one.
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  std::vector<drive> found;
  const DWORD existing = GetLogicalDrives();
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    if ((existing >> static_cast<unsigned>(letter - 'A') & 1U) == 0) continue;
    const std::wstring root = {static_cast<wchar_t>(letter), L':', L'\\'};
    found.push_back({letter, label_of(root.c_str()), root});
  }
  return found;
}

}  // namespace files
