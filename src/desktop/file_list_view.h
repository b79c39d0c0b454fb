#pragma once

#include "desktop/rows_view.h"
#include "forms_layer/file_list.h"
#include "forms_layer/user.h"

namespace desktop {

// Names of files.
class file_list_view : public rows_view {
 public:
  file_list_view(forms_layer::file_list& shown, QWidget* parent)
      : rows_view(shown, parent), files_(shown) {
    setAccessibleName(QStringLiteral("Files"));
  }

  std::string_view row_text(int row) const override { return files_.List(row); }
  int row_count() const override { return files_.ListCount(); }

 protected:
  int selected_row() const override { return files_.ListIndex(); }
  void row_chosen(int row) override { forms_layer::user::select_file(files_, row); }

 private:
  forms_layer::file_list& files_;
};

}  // namespace desktop
