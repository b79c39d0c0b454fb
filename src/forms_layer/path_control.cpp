#include "forms_layer/path_control.h"

#include <exception>

#include "files/paths.h"

namespace forms_layer {

void path_control::about_to_show() {
  if (!Path().empty()) return;
  Path.value_ = files::current_folder();
  try {
    Refresh();
  } catch (const std::exception&) {
    show_empty();
  }
}

}  // namespace forms_layer
