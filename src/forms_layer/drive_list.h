#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms_layer/control.h"

namespace forms_layer {

// A drop-down list of the drives.
class drive_list : public control {
 public:
  drive_list(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::drive_list, as_designed) {}

  // Selects the drive of the first letter of `text` and raises Change if it is another one. Throws
  // file_error if the drive does not exist.
  void set_drive(const std::string& text);
  // The text of the selected drive, such as "c: [home]".
  checked_property<std::string, drive_list, &drive_list::set_drive> Drive{*this, ""};

  event Change;

  // Reloads the drives. If none is selected, selects that of the current folder of the process.
  void about_to_show() override;
  void reload() override { about_to_show(); }
  const std::vector<std::string>& rows() const { return rows_; }
  // -1 for none.
  std::int32_t selected_row() const;

 private:
  std::vector<std::string> rows_;
};

}  // namespace forms_layer
