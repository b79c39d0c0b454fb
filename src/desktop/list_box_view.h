#pragma once

#include "desktop/dialogs.h"
#include "desktop/rows_view.h"
#include "forms_layer/list_box.h"
#include "forms_layer/user.h"

namespace desktop {

// Rows of text. Presses, double clicks and keys are reported to the tool.
class list_box_view : public rows_view {
 public:
  list_box_view(forms_layer::list_box& shown, QWidget* parent)
      : rows_view(shown, parent), list_(shown) {}

  std::string_view row_text(int row) const override { return list_.List(row); }
  int row_count() const override { return list_.ListCount(); }

 protected:
  int selected_row() const override { return list_.ListIndex(); }
  void row_chosen(int row) override { forms_layer::user::select_row(list_, row); }
  void row_double_clicked(int row) override { forms_layer::user::double_click(list_, row); }
  void menu_requested(int row, const QPoint& at) override {
    forms_layer::user::open_menu(list_, row, as_screen_point(at));
  }

 private:
  forms_layer::list_box& list_;
};

}  // namespace desktop
