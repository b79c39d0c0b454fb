#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>

#include "files/code_page.h"
#include "files/drives.h"

// POSIX has no drives. C: is the user's home folder, Z: the root of the file system, and the
// letters from D: on are the folders in which systems mount media.
namespace files {

namespace {

namespace fs = std::filesystem;

fs::path home_folder() {
  const char* home = std::getenv("HOME");
  if (home != nullptr && *home == '/') return home;
  const passwd* user = getpwuid(getuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

std::string user_name() {
  const passwd* user = getpwuid(getuid());
  return user != nullptr && user->pw_name != nullptr ? user->pw_name : "";
}

std::vector<fs::path> folders_in(const fs::path& folder) {
  std::vector<fs::path> found;
  std::error_code failed;
  for (fs::directory_iterator at(folder, failed), end; !failed && at != end; at.increment(failed)) {
    std::error_code unknown;
    if (at->is_directory(unknown)) found.push_back(at->path());
  }
  std::sort(found.begin(), found.end());
  return found;
}

}  // namespace

std::vector<drive> system_drives() {
  std::vector<drive> found = {{'C', "home", home_folder()}};
  const std::string user = user_name();
  std::vector<fs::path> mount_folders = {"/mnt"};
  if (!user.empty()) {
    mount_folders.insert(mount_folders.begin(), {"/media/" + user, "/run/media/" + user});
  }
  char letter = 'D';
  for (const fs::path& folder : mount_folders) {
    for (const fs::path& medium : folders_in(folder)) {
      if (letter == 'Z') break;
      found.push_back({letter++, from_utf8_lossy(medium.filename().u8string()), medium});
    }
  }
  found.push_back({'Z', "root", "/"});
  return found;
}

}  // namespace files
