#pragma once

#include <algorithm>

#include "desktop/rows_view.h"
#include "forms_layer/dir_list.h"
#include "forms_layer/user.h"

namespace desktop {

// Folders as a tree. A press only selects a row; a double click or Enter opens its folder.
class dir_list_view : public rows_view {
 public:
  dir_list_view(forms_layer::dir_list& shown, QWidget* parent)
      : rows_view(shown, parent), folders_(shown) {
    setAccessibleName(QStringLiteral("Folders"));
  }

  int indent(int row) const override {
    return std::min(row, folders_.open_row() + 1) * pixels_per_depth;
  }
  QIcon row_icon(int row) const override {
    const bool is_open = row <= folders_.open_row();
    return style()->standardIcon(is_open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon);
  }

 protected:
  void row_double_clicked(int row) override { forms_layer::user::open_folder(folders_, row); }
  void enter_pressed(int row) override { forms_layer::user::enter_folder(folders_, row); }

 private:
  static constexpr int pixels_per_depth = 8;

  forms_layer::dir_list& folders_;
};

}  // namespace desktop
