#pragma once

#include <functional>
#include <string>
#include <vector>

namespace forms_layer {

// What the drive, folder and file lists need from the file system. The start-up code fills it in.
// The functions throw a std::exception whose text is a sentence for the user.
struct file_service {
  // Reloads the drives and returns their texts, such as "c: [home]".
  std::function<std::vector<std::string>()> drives;
  // The text of the drive that the first letter of `text` names.
  std::function<std::string(const std::string& text)> drive_named_by;
  std::function<std::string()> current_folder;
  // Makes a path absolute. The text of a drive means the current folder of that drive.
  std::function<std::string(const std::string& path)> full_path;
  // Sorted names.
  std::function<std::vector<std::string>(const std::string& path)> folders_in;
  std::function<std::vector<std::string>(const std::string& path, const std::string& pattern)>
      files_in;
};

extern file_service system_files;

}  // namespace forms_layer
