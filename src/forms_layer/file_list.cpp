#include "forms_layer/file_list.h"

#include "files/file_system.h"
#include "files/paths.h"
#include "files/text.h"

namespace forms_layer {

void file_list::set_path(const std::string& path) { load(files::full_path(path)); }

void file_list::set_pattern(const std::string& pattern) {
  Pattern.value_ = pattern;
  if (!Path().empty()) Refresh();
}

void file_list::Refresh() { load(Path()); }

void file_list::load(const std::string& path) {
  rows_ = files::files_in(path);
  std::erase_if(rows_,
                [this](const auto& name) { return !files::matches_pattern(name, Pattern()); });
  store_path(path);
  ListIndex = -1;
  notify_screen(property_id::items);
}

}  // namespace forms_layer
