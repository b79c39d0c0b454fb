#pragma once

#include <QLineEdit>

#include "desktop/control_view.h"
#include "forms_layer/text_box.h"

namespace desktop {

// A text box of one line.
class text_field_view : public view_of<QLineEdit, forms_layer::text_box> {
 public:
  text_field_view(forms_layer::text_box& shown, QWidget* parent);

 protected:
  void show_content() override;

 private:
  void limit_to(int length);
};

}  // namespace desktop
