#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms_layer/path_control.h"

namespace forms_layer {

// A tree of folders: the ancestors of `Path`, that folder itself, which is selected when it is
// read, and the folders in it.
class dir_list : public path_control {
 public:
  dir_list(container& parent_container, const design& as_designed)
      : path_control(parent_container, control_kind::dir_list, as_designed) {}

  // Raises Change if it is another folder.
  void set_path(const std::string& path) override;
  void Refresh() override;

  event Change;
  // Raised by Enter on the open folder. Returns false if it does nothing there.
  std::function<bool()> Confirm;

  // The row of `Path`. The rows before it are its ancestors.
  std::int32_t open_row() const { return open_row_; }
  std::string path_of(std::int32_t row) const;

 private:
  void show_empty() override { show({}); }
  void show(const std::vector<std::string>& folders_inside);

  std::int32_t open_row_ = 0;
};

}  // namespace forms_layer
