#pragma once

#include "desktop/rows_view.h"
#include "platform/list_box.h"
#include "platform/user.h"

namespace desktop {

// Rows of text; a press, a double click and the keyboard go to the tool.
class list_box_view : public rows_view {
 public:
  list_box_view(platform::list_box& shown, QWidget* parent)
      : rows_view(shown, parent), list_(shown) {}

  std::string_view row_text(int row) const override { return list_.List(row); }
  int row_count() const override { return list_.ListCount(); }

 protected:
  int selected_row() const override { return list_.ListIndex(); }
  void row_chosen(int row) override { platform::user::select_row(list_, row); }
  void row_double_clicked(int row) override { platform::user::double_click(list_, row); }

 private:
  platform::list_box& list_;
};

}  // namespace desktop
