#include "forms_layer/drive_list.h"

#include <algorithm>

#include "forms_layer/file_service.h"

namespace forms_layer {

void drive_list::set_drive(const std::string& text) {
  const std::string wanted = system_files.drive_named_by(text);
  if (wanted == Drive()) return;
  Drive.value_ = wanted;
  tell_screen(property_id::selection);
  if (Change) Change();
}

void drive_list::about_to_show() {
  rows_ = system_files.drives();
  if (Drive().empty()) {
    const std::string current = system_files.current_folder().substr(0, 2);
    const auto is_current = [&current](const std::string& row) {
      return row.size() > 1 && row[1] == current[1] && (row[0] ^ 0x20) == current[0];
    };
    const auto found = std::find_if(rows_.begin(), rows_.end(), is_current);
    if (found != rows_.end()) Drive.value_ = *found;
  }
  tell_screen(property_id::items);
}

std::int32_t drive_list::selected_row() const {
  const auto at = std::find(rows_.begin(), rows_.end(), Drive());
  return at == rows_.end() ? -1 : static_cast<std::int32_t>(at - rows_.begin());
}

}  // namespace forms_layer
