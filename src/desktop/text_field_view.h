#pragma once

#include <QLineEdit>

#include "desktop/control_view.h"
#include "forms_layer/text_box.h"

namespace desktop {

// A text box of one line.
class text_field_view : public QLineEdit, public control_view {
 public:
  text_field_view(forms_layer::text_box& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override;
  void show_colours() override;

 private:
  void take_edit();

  forms_layer::text_box& box_;
};

}  // namespace desktop
