#include "archive/passed_over.h"

#include <algorithm>

#include "platform/message_box.h"

namespace ostrane {

namespace {

constexpr std::int32_t most_named = 20;

// Control characters would break the lines of the message.
std::string printable(std::string name) {
  std::replace_if(
      name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, '?');
  return name;
}

}  // namespace

void pass_over(passed_over_entries& entries, const std::string& name, const std::string& reason) {
  ++entries.count;
  if (entries.count > most_named) return;
  entries.named += "\n>" + printable(name) + "<: " + reason;
}

void tell_what_was_passed_over(const passed_over_entries& entries) {
  if (entries.count == 0) return;
  std::string text = "These entries were not extracted:" + entries.named;
  if (entries.count > most_named) {
    text += "\nand " + std::to_string(entries.count - most_named) + " more.";
  }
  platform::message_box(text);
}

}  // namespace ostrane
