#include "archive/skipped_files.h"

#include <algorithm>

#include "files/text.h"

namespace ostrane {

std::string skipped_files_text(const std::vector<skipped_file>& list, const char* heading) {
  constexpr std::size_t max_named = 20;
  if (list.empty()) return "";
  std::string text = heading;
  for (std::size_t i = 0; i < std::min(list.size(), max_named); ++i) {
    text += "\n>" + files::printable(list[i].name) + "<: " + list[i].reason;
  }
  if (list.size() > max_named) {
    text += "\nand " + std::to_string(list.size() - max_named) + " more.";
  }
  return text;
}

}  // namespace ostrane
