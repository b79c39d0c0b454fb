#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms_layer/control.h"

namespace forms_layer {

// A drop-down list of the drives. `Drive` reads as the selected drive's text, such as "c: [home]".
// Writing it selects the drive that the text's first letter names, and raises Change if that is
// another one; a letter without a drive throws file_error.
class drive_list : public control {
 public:
  drive_list(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::drive_list, as_designed) {}

  void set_drive(const std::string& text);
  guarded_property<std::string, drive_list, &drive_list::set_drive> Drive{*this, ""};

  event Change;

  // Looks which drives there are now. The first time the current drive becomes the selected one.
  void about_to_show() override;
  void reload() override { about_to_show(); }
  const std::vector<std::string>& rows() const { return rows_; }
  std::int32_t selected_row() const;

 private:
  std::vector<std::string> rows_;
};

}  // namespace forms_layer
