#pragma once

#include <QTemporaryDir>
#include <QWidget>
#include <filesystem>
#include <memory>
#include <vector>

#include "forms_layer/screen.h"

namespace desktop {

// A drag of files out of the window. The other program may ask for them after the drag, and copies
// them from the folder, so this must live on.
struct file_drag {
  QTemporaryDir folder;
  forms_layer::file_writer write;
  bool is_running = true;
  bool is_written = false;
};

// Lets the user drag files of these names. Returns null if the files are not needed any more,
// or, after a message, if there is no folder for them.
std::shared_ptr<file_drag> drag_files(const std::vector<std::filesystem::path>& names,
                                      const forms_layer::file_writer& write, QWidget& from);

}  // namespace desktop
