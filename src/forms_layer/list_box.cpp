#include "forms_layer/list_box.h"

namespace forms_layer {

const std::string& list_box::List(std::int32_t index) const {
  static const std::string none;
  return index >= 0 && index < ListCount() ? rows_[static_cast<std::size_t>(index)] : none;
}

}  // namespace forms_layer
