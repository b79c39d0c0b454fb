#pragma once

#include <QTemporaryDir>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace desktop {

using file_writer = std::function<void(const std::filesystem::path& folder)>;

// Lets the user drag files of these names out of the window. Returns the folder in which `write`
// has written them when they were dropped; null if they were not. The other program copies them
// from there, possibly after the drag.
std::unique_ptr<QTemporaryDir> drag_files(const std::vector<std::filesystem::path>& names,
                                          const file_writer& write, QWidget& from);

}  // namespace desktop
