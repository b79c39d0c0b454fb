#include "archive/skipped_files.h"

#include <algorithm>

namespace ostrane {

namespace {

constexpr std::size_t max_named = 20;

// Control characters would break the line.
std::string printable(std::string line) {
  std::replace_if(
      line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, '?');
  return line;
}

}  // namespace

std::string skipped_files_text(const std::vector<skipped_file>& files, const char* heading) {
  if (files.empty()) return "";
  std::string text = heading;
  for (std::size_t i = 0; i < std::min(files.size(), max_named); ++i) {
    text += "\n" + printable(">" + files[i].name + "<: " + files[i].reason);
  }
  if (files.size() > max_named) {
    text += "\nand " + std::to_string(files.size() - max_named) + " more.";
  }
  return text;
}

}  // namespace ostrane
