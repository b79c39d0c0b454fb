#include "forms_layer/drive_list.h"

#include <algorithm>

#include "files/drives.h"
#include "files/file_error.h"
#include "files/paths.h"

namespace forms_layer {

void drive_list::set_drive(const std::string& text) {
  const files::drive* named = files::find_drive(files::drive_letter(text));
  if (named == nullptr) {
    throw files::file_error{files::file_error_number::device_unavailable,
                            "There is no drive " + text.substr(0, 1) + "."};
  }
  const std::string wanted = files::drive_text(*named);
  if (wanted == Drive()) return;
  Drive.value_ = wanted;
  tell_screen(property_id::selection);
  if (Change) Change();
}

void drive_list::about_to_show() {
  files::find_drives();
  const files::drive* current = files::find_drive(files::current_folder()[0]);
  if (Drive().empty() && current != nullptr) Drive.value_ = files::drive_text(*current);
  rows_.clear();
  for (const files::drive& d : files::drives()) rows_.push_back(files::drive_text(d));
  tell_screen(property_id::items);
}

std::int32_t drive_list::selected_row() const {
  const auto at = std::find(rows_.begin(), rows_.end(), Drive());
  return at == rows_.end() ? -1 : static_cast<std::int32_t>(at - rows_.begin());
}

}  // namespace forms_layer
