#include "forms_layer/dir_list.h"

#include <algorithm>

#include "files/file_system.h"
#include "files/paths.h"

namespace forms_layer {

void dir_list::set_path(const std::string& path) {
  const std::string whole = files::full_path(path);
  const std::vector<std::string> folders = files::folders_in(whole);
  const bool changed = whole != Path();
  store_path(whole);
  show(folders);
  if (changed && Change) Change();
}

void dir_list::Refresh() { show(files::folders_in(Path())); }

void dir_list::show(const std::vector<std::string>& folders_inside) {
  const std::string& path = Path();
  rows_ = {path.substr(0, 3)};  // "C:\"
  for (std::size_t begin = rows_.front().size(); begin < path.size();) {
    const std::size_t end = std::min(path.find('\\', begin), path.size());
    rows_.push_back(path.substr(begin, end - begin));
    begin = end + 1;
  }
  open_row_ = ListCount() - 1;
  rows_.insert(rows_.end(), folders_inside.begin(), folders_inside.end());
  ListIndex = open_row_;
  notify_screen(property_id::items);
}

std::string dir_list::path_of(std::int32_t row) const {
  std::string path = List(0);
  for (std::int32_t i = 1; i <= row; ++i) {
    if (i > open_row_ && i < row) continue;
    if (path.back() != '\\') path += '\\';
    path += List(i);
  }
  return path;
}

}  // namespace forms_layer
