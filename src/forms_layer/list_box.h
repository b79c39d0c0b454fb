#pragma once

#include <utility>

#include "forms_layer/row_list.h"

namespace forms_layer {

// Rows in the order of AddItem.
class list_box : public row_list {
 public:
  list_box(container& parent_container, const design& as_designed)
      : row_list(parent_container, control_kind::list_box, as_designed) {}

  void AddItem(std::string text) {
    // Room for the longest index.
    if (rows_.capacity() == 0) rows_.reserve(reserved_rows);
    rows_.push_back(std::move(text));
    notify_screen(property_id::items);
  }

  // Removes all rows and selects nothing.
  void Clear() {
    rows_.clear();
    ListIndex = -1;
    SelectedRows = {};
    notify_screen(property_id::items);
  }

 private:
  static constexpr std::size_t reserved_rows = 32768;
};

}  // namespace forms_layer
