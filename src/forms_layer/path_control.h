#pragma once

#include <string>

#include "forms_layer/row_list.h"

namespace forms_layer {

// A list of what the folder `Path` holds.
class path_control : public row_list {
 public:
  // Takes a path, or the text of a drive, which means the current folder of that drive. Throws
  // file_error if the folder cannot be read; then `Path` is unchanged.
  virtual void set_path(const std::string& path) = 0;
  checked_property<std::string, path_control, &path_control::set_path> Path{*this, ""};

  // Reloads the folder. Throws file_error.
  virtual void Refresh() = 0;
  void reload() override { Refresh(); }

  // Goes to the current folder of the process if `Path` was never set.
  void about_to_show() override;

 protected:
  using row_list::row_list;
  void store_path(const std::string& path) { Path.value_ = path; }
  // Called if the current folder of the process cannot be read.
  virtual void show_empty() {}
};

}  // namespace forms_layer
