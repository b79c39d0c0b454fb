#include "forms_layer/file_list.h"

#include "forms_layer/file_service.h"

namespace forms_layer {

void file_list::set_path(const std::string& path) { load(system_files.full_path(path)); }

void file_list::set_pattern(const std::string& pattern) {
  Pattern.value_ = pattern;
  if (!Path().empty()) Refresh();
}

void file_list::Refresh() { load(Path()); }

void file_list::load(const std::string& path) {
  rows_ = system_files.files_in(path, Pattern());
  store_path(path);
  ListIndex = -1;
  notify_screen(property_id::items);
}

}  // namespace forms_layer
