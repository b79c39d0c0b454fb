#include "forms_layer/file_list.h"

#include <exception>

#include "forms_layer/file_service.h"

namespace forms_layer {

void file_list::about_to_show() {
  if (!Path().empty()) return;
  Path.value_ = system_files.current_folder();
  try {
    read(Path(), Pattern());
  } catch (const std::exception&) {
    names_.clear();
  }
}

void file_list::set_path(const std::string& path) { read(system_files.full_path(path), Pattern()); }

void file_list::set_pattern(const std::string& pattern) {
  Pattern.value_ = pattern;
  if (!Path().empty()) read(Path(), Pattern());
}

void file_list::Refresh() { read(Path(), Pattern()); }

void file_list::read(const std::string& path, const std::string& pattern) {
  names_ = system_files.files_in(path, pattern);
  Path.value_ = path;
  Pattern.value_ = pattern;
  ListIndex = -1;
  tell_screen(property_id::items);
}

const std::string& file_list::List(std::int32_t index) const {
  static const std::string none;
  return index >= 0 && index < ListCount() ? names_[static_cast<std::size_t>(index)] : none;
}

}  // namespace forms_layer
