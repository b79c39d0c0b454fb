#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "forms_layer/control.h"
#include "forms_layer/menu.h"

namespace forms_layer {

// A list of rows of text.
class row_list : public control {
 public:
  // The selected row, -1 for none.
  property<std::int32_t, property_id::selection, control> ListIndex{*this, -1};

  // The rows that the user selected with Ctrl or Shift, sorted; empty if ListIndex alone is
  // selected. No row was clicked for it, and ListIndex stays.
  property<std::vector<std::int32_t>, property_id::selection, control> SelectedRows{*this, {}};

  event Click;
  event DblClick;
  context_menu* ContextMenu = nullptr;  // of its rows
  // The rows that a text finds, ascending.
  std::function<std::vector<std::int32_t>(const std::string& text)> Find;
  // A tool tip of a row, shown below that of the list.
  std::function<std::string(std::int32_t row)> RowToolTip;
  // Raised with the rows that the user drags out.
  std::function<void(const std::vector<std::int32_t>& rows)> Drag;

  std::int32_t ListCount() const { return static_cast<std::int32_t>(rows_.size()); }

  const std::vector<std::string>& rows() const { return rows_; }
  // The text of a row, or "" if there is no row of that number.
  const std::string& List(std::int32_t row) const {
    static const std::string none;
    return row >= 0 && row < ListCount() ? rows_[static_cast<std::size_t>(row)] : none;
  }

 protected:
  using control::control;

  // The caller notifies the screen of a change.
  std::vector<std::string> rows_;
};

}  // namespace forms_layer
