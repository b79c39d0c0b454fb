#pragma once

#include <QLabel>

#include "desktop/control_view.h"
#include "forms_layer/captioned.h"

namespace desktop {

// If the label has a Click handler, Enter and Space click it.
class label_view : public view_of<QLabel, forms_layer::label> {
 public:
  label_view(forms_layer::label& shown, QWidget* parent);

 protected:
  void show_content() override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace desktop
