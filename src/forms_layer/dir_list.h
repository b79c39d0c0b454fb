#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms_layer/control.h"

namespace forms_layer {

// The folders of a drive: those that lead to the current one, itself, and those in it. Writing
// `Path` goes there and raises Change if it is another folder. A drive's text goes to the current
// folder of that drive. A folder that cannot be read throws file_error, and the old one stays.
class dir_list : public control {
 public:
  // One row: a folder on the way to the current one (and that itself), or one inside it.
  struct row {
    std::string name;
    std::int32_t depth;
    bool open;
    std::string path;
  };

  dir_list(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::dir_list, as_designed) {}

  void set_path(const std::string& path);
  guarded_property<std::string, dir_list, &dir_list::set_path> Path{*this, ""};

  event Change;

  // The first time the current folder of the process becomes the Path, unless one was written.
  void about_to_show() override;

  // Reads the folders anew.
  void Refresh();
  void reload() override { Refresh(); }
  const std::vector<row>& rows() const { return rows_; }
  // The row of the current folder.
  std::int32_t open_row() const { return open_row_; }

 private:
  void show(const std::vector<std::string>& folders_inside);

  std::vector<row> rows_;
  std::int32_t open_row_ = 0;
};

}  // namespace forms_layer
