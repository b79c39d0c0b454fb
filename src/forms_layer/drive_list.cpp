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

void drive_list::about_to_show() {
  files::refresh_drives();
  rows_.clear();
  for (const files::drive& found : files::drives()) rows_.push_back(files::drive_text(found));
  if (Drive().empty()) {
    // A folder begins with "C:", a row with "c:".
    const char letter = files::current_folder()[0];
    const std::string prefix = {static_cast<char>(letter - 'A' + 'a'), ':'};
    const auto is_current = [&prefix](const std::string& row) { return row.starts_with(prefix); };
    const auto found = std::find_if(rows_.begin(), rows_.end(), is_current);
    if (found != rows_.end()) Drive.value_ = *found;
  }
  select_row_of_drive();
  notify_screen(property_id::items);
}

void drive_list::select_row_of_drive() {
  const auto at = std::find(rows_.begin(), rows_.end(), Drive());
  ListIndex = at == rows_.end() ? -1 : static_cast<std::int32_t>(at - rows_.begin());
}

}  // namespace forms_layer
