#include "forms_layer/dir_list.h"

#include <algorithm>
#include <exception>

#include "forms_layer/file_service.h"

namespace forms_layer {

void dir_list::about_to_show() {
  if (!Path().empty()) return;
  Path.value_ = system_files.current_folder();
  try {
    show(system_files.folders_in(Path()));
  } catch (const std::exception&) {
    show({});
  }
}

void dir_list::set_path(const std::string& path) {
  const std::string whole = system_files.full_path(path);
  const std::vector<std::string> folders = system_files.folders_in(whole);
  const bool other = whole != Path();
  Path.value_ = whole;
  show(folders);
  if (other && Change) Change();
}

void dir_list::Refresh() { show(system_files.folders_in(Path())); }

void dir_list::show(const std::vector<std::string>& folders_inside) {
  rows_.clear();
  const std::string& path = Path();
  rows_.push_back({path.substr(0, 3), 0, true, path.substr(0, 3)});
  std::size_t begin = 3;
  while (begin < path.size()) {
    const std::size_t end = std::min(path.find('\\', begin), path.size());
    const auto depth = static_cast<std::int32_t>(rows_.size());
    rows_.push_back({path.substr(begin, end - begin), depth, true, path.substr(0, end)});
    begin = end + 1;
  }
  open_row_ = static_cast<std::int32_t>(rows_.size()) - 1;
  const std::string before_name = path.back() == '\\' ? path : path + '\\';
  for (const std::string& folder : folders_inside) {
    rows_.push_back({folder, open_row_ + 1, false, before_name + folder});
  }
  tell_screen(property_id::items);
}

}  // namespace forms_layer
