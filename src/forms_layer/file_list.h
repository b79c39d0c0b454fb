#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms_layer/control.h"

namespace forms_layer {

// The names of the normal files in `Path` that match `Pattern`, ascending by their upper-case
// form. Hidden files are not listed. A folder that cannot be read throws file_error.
class file_list : public control {
 public:
  file_list(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::file_list, as_designed),
        Pattern(*this, as_designed.pattern) {}

  void set_path(const std::string& path);
  void set_pattern(const std::string& pattern);
  guarded_property<std::string, file_list, &file_list::set_path> Path{*this, ""};
  guarded_property<std::string, file_list, &file_list::set_pattern> Pattern;
  property<std::int32_t, property_id::selection, control> ListIndex{*this, -1};

  event Click;

  std::int32_t ListCount() const { return static_cast<std::int32_t>(names_.size()); }
  // The name in a row; empty for a number that no row has.
  const std::string& List(std::int32_t index) const;
  // The selected name, or empty.
  const std::string& FileName() const { return List(ListIndex()); }

  // The first time the current folder of the process becomes the Path, unless one was written.
  void about_to_show() override;

  // Reads the folder anew; nothing is selected then.
  void Refresh();
  void reload() override { Refresh(); }

 private:
  void read(const std::string& path, const std::string& pattern);

  std::vector<std::string> names_;
};

}  // namespace forms_layer
