#include "platform/drive_list.h"

#include <algorithm>

#include "platform/drives.h"
#include "platform/file_error.h"
#include "platform/paths.h"

namespace platform {

void drive_list::set_drive(const std::string& text) {
  const drive* named = find_drive(drive_letter(text));
  if (named == nullptr) {
    throw file_error{file_error_number::device_unavailable,
                     "There is no drive " + text.substr(0, 1) + "."};
  }
  const std::string wanted = drive_text(*named);
  if (wanted == Drive()) return;
  Drive.value_ = wanted;
  tell_screen(aspect::selection);
  if (Change) Change();
}

void drive_list::about_to_show() {
  find_drives();
  const drive* current = find_drive(current_folder()[0]);
  if (Drive().empty() && current != nullptr) Drive.value_ = drive_text(*current);
  rows_.clear();
  for (const drive& d : drives()) rows_.push_back(drive_text(d));
  tell_screen(aspect::items);
}

std::int32_t drive_list::selected_row() const {
  const auto at = std::find(rows_.begin(), rows_.end(), Drive());
  return at == rows_.end() ? -1 : static_cast<std::int32_t>(at - rows_.begin());
}

}  // namespace platform
