#include "archive/skipped_files.h"

#include <algorithm>

namespace ostrane {

namespace {

constexpr std::int32_t max_named = 20;

// Control characters would break the lines of the message.
std::string printable(std::string name) {
  std::replace_if(
      name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, '?');
  return name;
}

}  // namespace

void add_skipped(skipped_files& files, const std::string& name, const std::string& reason) {
  ++files.count;
  if (files.count <= max_named) files.named += "\n>" + printable(name) + "<: " + reason;
}

std::string text_of(const skipped_files& files, const char* heading) {
  if (files.count == 0) return "";
  const std::int32_t more = files.count - max_named;
  return heading + files.named + (more > 0 ? "\nand " + std::to_string(more) + " more." : "");
}

}  // namespace ostrane
