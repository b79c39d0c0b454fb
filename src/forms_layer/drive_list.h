#pragma once

#include <string>

#include "forms_layer/row_list.h"

namespace forms_layer {

// A drop-down list of the drives.
class drive_list : public row_list {
 public:
  drive_list(container& parent_container, const design& as_designed)
      : row_list(parent_container, control_kind::drive_list, as_designed) {}

  // Selects the drive of the first letter of `text` and raises Change if it is another one. Throws
  // file_error if the drive does not exist.
  void set_drive(const std::string& text);
  // The text of the selected drive, such as "c: [home]".
  checked_property<std::string, drive_list, &drive_list::set_drive> Drive{*this, ""};

  event Change;

  // Reloads the drives. If none is selected, selects that of the current folder of the process.
  void reload() override;
  void about_to_show() override { reload(); }

 private:
  void select_row_of_drive();
};

}  // namespace forms_layer
