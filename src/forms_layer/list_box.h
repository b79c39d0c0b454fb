#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms_layer/control.h"

namespace forms_layer {

// Rows of text in the order in which they were added.
class list_box : public control {
 public:
  list_box(container& parent_container, const design& as_designed)
      : control(parent_container, control_kind::list_box, as_designed) {}

  // The selected row, -1 for none.
  property<std::int32_t, property_id::selection, control> ListIndex{*this, -1};

  event Click;
  event DblClick;

  void AddItem(std::string text) {
    // Memory that is not written to costs nothing, and to move many rows does.
    if (rows_.capacity() == 0) rows_.reserve(often_enough);
    rows_.push_back(std::move(text));
    tell_screen(property_id::items);
  }

  // Takes all rows away; nothing is selected then.
  void Clear() {
    rows_.clear();
    ListIndex = -1;
    tell_screen(property_id::items);
  }

  std::int32_t ListCount() const { return static_cast<std::int32_t>(rows_.size()); }

  // The text of a row; empty for a number that no row has.
  const std::string& List(std::int32_t index) const;

 private:
  static constexpr std::size_t often_enough = 32768;

  std::vector<std::string> rows_;
};

}  // namespace forms_layer
