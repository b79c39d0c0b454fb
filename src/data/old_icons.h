#pragma once

#include <memory>

#include "data/archive_index.h"
#include "data/icon_file.h"

namespace ostrane {

// The icon file with the old cells.
struct old_icons {
  files::file_path path;  // of the icon file or its archive
  files::file_stamp stamp;
  icon_file icons;
};

// Reads the old cells. Each thread has its own, which ends before the result is written: Windows
// does not replace an open file.
class old_icon_reader {
 public:
  // Throws file_error, and archive_changed if the file has changed.
  explicit old_icon_reader(const old_icons& from) : icons_(from.icons) {
    open_unchanged(file_, from.path, from.stamp);
  }

  // Throws file_error.
  stored_icon read(std::size_t index) {
    if (index >= icons_.positions.size()) return {};
    return read_stored_icon(*stream_, file_, icons_, index);
  }

 private:
  const icon_file& icons_;
  files::binary_file file_;
  std::unique_ptr<icon_stream> stream_ = std::make_unique<icon_stream>();
};

}  // namespace ostrane
