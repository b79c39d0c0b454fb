#include "forms_layer/dir_list.h"

#include <algorithm>

#include "forms_layer/file_service.h"

namespace forms_layer {

void dir_list::set_path(const std::string& path) {
  const std::string whole = system_files.full_path(path);
  const std::vector<std::string> folders = system_files.folders_in(whole);
  const bool changed = whole != Path();
  store_path(whole);
  show(folders);
  if (changed && Change) Change();
}

void dir_list::Refresh() { show(system_files.folders_in(Path())); }

void dir_list::show(const std::vector<std::string>& folders_inside) {
  rows_.clear();
  const std::string& path = Path();
  const std::string root = path.substr(0, 3);  // "C:\"
  rows_.push_back({root, 0, true, root});
  std::size_t begin = root.size();
  while (begin < path.size()) {
    const std::size_t end = std::min(path.find('\\', begin), path.size());
    const auto depth = static_cast<std::int32_t>(rows_.size());
    rows_.push_back({path.substr(begin, end - begin), depth, true, path.substr(0, end)});
    begin = end + 1;
  }
  open_row_ = static_cast<std::int32_t>(rows_.size()) - 1;
  const std::string prefix = path.back() == '\\' ? path : path + '\\';
  for (const std::string& folder : folders_inside) {
    rows_.push_back({folder, open_row_ + 1, false, prefix + folder});
  }
  notify_screen(property_id::items);
}

}  // namespace forms_layer
