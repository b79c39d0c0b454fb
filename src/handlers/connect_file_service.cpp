#include "handlers/connect_file_service.h"

#include "files/drives.h"
#include "files/file_system.h"
#include "files/paths.h"
#include "files/text.h"
#include "forms_layer/file_service.h"

namespace ostrane {

namespace {

std::vector<std::string> drive_texts() {
  files::refresh_drives();
  std::vector<std::string> texts;
  for (const files::drive& found : files::drives()) texts.push_back(files::drive_text(found));
  return texts;
}

std::vector<std::string> files_in(const std::string& path, const std::string& pattern) {
  std::vector<std::string> names = files::files_in(path);
  std::erase_if(names, [&pattern](const std::string& name) {
    return !files::matches_pattern(name, pattern);
  });
  return names;
}

}  // namespace

void connect_file_service() {
  forms_layer::system_files = {
      .drives = drive_texts,
      .drive_named_by =
          [](const std::string& text) { return files::drive_text(files::drive_of(text)); },
      .current_folder = files::current_folder,
      .full_path = files::full_path,
      .folders_in = files::folders_in,
      .files_in = files_in,
  };
}

}  // namespace ostrane
