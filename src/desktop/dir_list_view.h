#pragma once

#include "desktop/rows_view.h"
#include "forms_layer/dir_list.h"
#include "forms_layer/user.h"

namespace desktop {

// Folders as a tree. A press only moves the highlight; a double click or Enter opens the folder.
class dir_list_view : public rows_view {
 public:
  dir_list_view(forms_layer::dir_list& shown, QWidget* parent)
      : rows_view(shown, parent), folders_(shown) {
    setAccessibleName(QStringLiteral("Folders"));
  }

  std::string_view row_text(int row) const override { return at(row).name; }
  int row_count() const override { return static_cast<int>(folders_.rows().size()); }
  int indent(int row) const override { return at(row).depth * pixels_per_depth; }
  QIcon row_icon(int row) const override {
    return style()->standardIcon(at(row).open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon);
  }

 protected:
  int selected_row() const override { return highlighted_; }
  void show_content() override {
    highlighted_ = folders_.open_row();
    rows_view::show_content();
  }
  void row_chosen(int row) override { highlighted_ = row; }
  void row_double_clicked(int row) override { open(row); }
  void enter_pressed(int row) override { open(row); }

 private:
  static constexpr int pixels_per_depth = 8;

  const forms_layer::dir_list::row& at(int row) const {
    return folders_.rows()[static_cast<std::size_t>(row)];
  }
  void open(int row) { forms_layer::user::open_folder(folders_, row); }

  forms_layer::dir_list& folders_;
  int highlighted_ = 0;
};

}  // namespace desktop
