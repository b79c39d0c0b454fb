#include "platform/file_list.h"

#include "platform/file_error.h"
#include "platform/file_system.h"
#include "platform/paths.h"

namespace platform {

void file_list::about_to_show() {
  if (!Path().empty()) return;
  Path.value_ = current_folder();
  try {
    read(Path(), Pattern());
  } catch (const file_error&) {
    names_.clear();
  }
}

void file_list::set_path(const std::string& path) { read(full_path(path), Pattern()); }

void file_list::set_pattern(const std::string& pattern) {
  Pattern.value_ = pattern;
  if (!Path().empty()) read(Path(), Pattern());
}

void file_list::Refresh() { read(Path(), Pattern()); }

void file_list::read(const std::string& path, const std::string& pattern) {
  std::vector<std::string> found;
  for (std::string& name : files_in(path)) {
    if (matches_pattern(name, pattern)) found.push_back(std::move(name));
  }
  names_ = std::move(found);
  Path.value_ = path;
  Pattern.value_ = pattern;
  ListIndex = -1;
  tell_screen(aspect::items);
}

const std::string& file_list::List(std::int32_t index) const {
  static const std::string none;
  return index >= 0 && index < ListCount() ? names_[static_cast<std::size_t>(index)] : none;
}

}  // namespace platform
