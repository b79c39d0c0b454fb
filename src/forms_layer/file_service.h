#pragma once

#include <functional>
#include <string>
#include <vector>

namespace forms_layer {

// What the drive, folder and file lists ask the system. Whoever starts the forms fills it in; a
// question that cannot be answered throws a std::exception whose text is a sentence for the user.
struct file_service {
  // The texts of the drives that there are now, such as "c: [home]".
  std::function<std::vector<std::string>()> drives;
  // The text of the drive that the first letter of `text` names.
  std::function<std::string(const std::string& text)> drive_named_by;
  std::function<std::string()> current_folder;
  // Where a path or the text of a drive leads to.
  std::function<std::string(const std::string& path)> full_path;
  // Names in ascending order.
  std::function<std::vector<std::string>(const std::string& path)> folders_in;
  std::function<std::vector<std::string>(const std::string& path, const std::string& pattern)>
      files_in;
};

extern file_service system_files;

}  // namespace forms_layer
