#include "files/drives.h"

#include <algorithm>

namespace files {

namespace {

std::vector<drive> known;
bool is_known = false;
bool is_override = false;
std::string current_override;

}  // namespace

const std::vector<drive>& drives() {
  if (!is_known) refresh_drives();
  return known;
}

void refresh_drives() {
  if (is_override) return;
  std::vector<drive> all = system_drives();
  is_known = true;
  for (drive& found : all) {
    const auto same_folder = [&found](const drive& d) { return d.folder == found.folder; };
    if (std::any_of(known.begin(), known.end(), same_folder)) continue;
    while (find_drive(found.letter) != nullptr && found.letter < 'Y') ++found.letter;
    if (find_drive(found.letter) == nullptr) known.push_back(found);
  }
  std::sort(known.begin(), known.end(),
            [](const drive& a, const drive& b) { return a.letter < b.letter; });
}

void override_system(std::vector<drive> replacement, std::string current) {
  is_override = !replacement.empty();
  is_known = is_override;
  known = std::move(replacement);
  current_override = std::move(current);
}

const std::string& current_folder_override() { return current_override; }

const drive* find_drive(char letter) {
  const auto is_named = [letter](const drive& d) { return d.letter == letter; };
  const auto at = std::find_if(drives().begin(), drives().end(), is_named);
  return at == known.end() ? nullptr : &*at;
}

std::string drive_text(const drive& shown) {
  return std::string(1, static_cast<char>(shown.letter - 'A' + 'a')) + ": [" + shown.label + "]";
}

}  // namespace files
