#pragma once

#include <string>

#include "forms_layer/path_control.h"

namespace forms_layer {

// The names of the regular files in `Path` that match `Pattern`, sorted by their upper-case form.
// Hidden files are not listed.
class file_list : public path_control {
 public:
  file_list(container& parent_container, const design& as_designed)
      : path_control(parent_container, control_kind::file_list, as_designed),
        Pattern(*this, as_designed.pattern) {}

  void set_path(const std::string& path) override;
  // Throws file_error if the folder cannot be read.
  void set_pattern(const std::string& pattern);
  checked_property<std::string, file_list, &file_list::set_pattern> Pattern;

  // The selected name, or "".
  const std::string& FileName() const { return List(ListIndex()); }

  // Reads the folder again. No row is selected then.
  void Refresh() override;

 private:
  void load(const std::string& path);
};

}  // namespace forms_layer
