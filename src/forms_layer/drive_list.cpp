#include "forms_layer/drive_list.h"

#include <algorithm>

#include "files/drives.h"
#include "files/paths.h"

namespace forms_layer {

void drive_list::set_drive(const std::string& text) {
  const std::string wanted = files::drive_text(files::drive_of(text));
  if (wanted == Drive()) return;
  Drive.value_ = wanted;
  select_row_of_drive();
  if (Change) Change();
}

void drive_list::reload() {
  files::refresh_drives();
  rows_.clear();
  for (const files::drive& found : files::drives()) rows_.push_back(files::drive_text(found));
  if (Drive().empty()) {
    const files::drive* const current = files::find_drive(files::current_folder()[0]);
    if (current != nullptr) Drive.value_ = files::drive_text(*current);
  }
  select_row_of_drive();
  notify_screen(property_id::items);
}

void drive_list::select_row_of_drive() {
  const auto at = std::find(rows_.begin(), rows_.end(), Drive());
  ListIndex = at == rows_.end() ? -1 : static_cast<std::int32_t>(at - rows_.begin());
}

}  // namespace forms_layer
