#include "files/drives.h"

#include <algorithm>

namespace files {

namespace {

std::vector<drive> known;
bool looked = false;
bool given_by_caller = false;
std::string current_given;

}  // namespace

const std::vector<drive>& drives() {
  if (!looked) find_drives();
  return known;
}

void find_drives() {
  looked = true;
  if (given_by_caller) return;
  for (drive& found : system_drives()) {
    const auto same_folder = [&found](const drive& d) { return d.folder == found.folder; };
    if (std::any_of(known.begin(), known.end(), same_folder)) continue;
    while (find_drive(found.letter) != nullptr && found.letter < 'Y') ++found.letter;
    if (find_drive(found.letter) == nullptr) known.push_back(found);
  }
  std::sort(known.begin(), known.end(),
            [](const drive& a, const drive& b) { return a.letter < b.letter; });
}

void set_drives(std::vector<drive> given, std::string current) {
  given_by_caller = !given.empty();
  looked = given_by_caller;
  known = std::move(given);
  current_given = std::move(current);
}

const std::string& given_current_folder() { return current_given; }

const drive* find_drive(char letter) {
  if (!looked) find_drives();
  const auto at = std::find_if(known.begin(), known.end(),
                               [letter](const drive& d) { return d.letter == letter; });
  return at == known.end() ? nullptr : &*at;
}

std::string drive_text(const drive& shown) {
  return std::string(1, static_cast<char>(shown.letter - 'A' + 'a')) + ": [" + shown.label + "]";
}

}  // namespace files
