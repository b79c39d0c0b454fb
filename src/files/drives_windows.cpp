#include <windows.h>

#include <array>
#include <chrono>
#include <future>
#include <map>
#include <thread>

#include <winnetwk.h>

#include "files/code_page.h"
#include "files/drives.h"
#include "files/system_name.h"

namespace files {

namespace {

// For the labels of all drives without a fixed disk together.
constexpr auto max_wait = std::chrono::milliseconds(500);

std::wstring volume_label(const std::wstring& root) {
  std::array<wchar_t, MAX_PATH + 1> label = {};
  GetVolumeInformationW(root.c_str(), label.data(), label.size(), nullptr, nullptr, nullptr,
                        nullptr, 0);
  return label.data();
}

// A drive without a medium, or whose medium does not spin yet, can take seconds to answer. The
// thread of a drive that does not answer in time goes on until it does.
std::wstring label_until(std::chrono::steady_clock::time_point deadline, const std::wstring& root) {
  std::packaged_task<std::wstring()> task([root] { return volume_label(root); });
  std::future<std::wstring> label = task.get_future();
  std::thread(std::move(task)).detach();
  return label.wait_until(deadline) == std::future_status::ready ? label.get() : std::wstring();
}

// The path on the server, which Windows knows without asking it.
std::wstring share_of(const std::wstring& root) {
  std::array<wchar_t, MAX_PATH + 1> share = {};
  DWORD size = share.size();
  return WNetGetConnectionW(root.substr(0, 2).c_str(), share.data(), &size) == NO_ERROR
             ? share.data()
             : std::wstring();
}

std::string label_of(const std::wstring& root, std::chrono::steady_clock::time_point deadline) {
  switch (GetDriveTypeW(root.c_str())) {
    case DRIVE_FIXED:
      return name_as_text_lossy(volume_label(root));
    case DRIVE_REMOTE:
      return name_as_text_lossy(share_of(root));
    default:
      return name_as_text_lossy(label_until(deadline, root));
  }
}

}  // namespace

// Each drive is asked for its label only once, as a drive keeps its text.
std::vector<drive> system_drives() {
  static std::map<std::wstring, std::string> labels;

  // An access to a drive without a medium then fails instead of asking the user for one.
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
  const auto deadline = std::chrono::steady_clock::now() + max_wait;
  std::vector<drive> found;
  const DWORD existing = GetLogicalDrives();
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    if ((existing >> static_cast<unsigned>(letter - 'A') & 1U) == 0) continue;
    const std::wstring root = {static_cast<wchar_t>(letter), L':', L'\\'};
    const auto [label, is_new] = labels.try_emplace(root);
    if (is_new) label->second = label_of(root, deadline);
    found.push_back({letter, label->second, root});
  }
  return found;
}

}  // namespace files
