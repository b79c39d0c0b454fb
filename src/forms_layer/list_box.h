#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "forms_layer/control.h"
#include "forms_layer/menu.h"
#include "forms_layer/row_text.h"

namespace forms_layer {

// Rows of text, in the order of AddItem.
class list_box : public control {
 public:
  list_box(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::list_box, as_designed) {}

  // The selected row, -1 for none.
  property<std::int32_t, property_id::selection, control> ListIndex{*this, -1};

  event Click;
  event DblClick;
  context_menu* ContextMenu = nullptr;  // of its rows

  void AddItem(std::string text) {
    // Untouched pages are free, regrowing is not.
    if (rows_.capacity() == 0) rows_.reserve(reserved_rows);
    rows_.push_back(std::move(text));
    notify_screen(property_id::items);
  }

  // Removes all rows and selects nothing.
  void Clear() {
    rows_.clear();
    ListIndex = -1;
    notify_screen(property_id::items);
  }

  std::int32_t ListCount() const { return static_cast<std::int32_t>(rows_.size()); }
  const std::string& List(std::int32_t row) const { return row_text(rows_, row); }

 private:
  static constexpr std::size_t reserved_rows = 32768;

  std::vector<std::string> rows_;
};

}  // namespace forms_layer
