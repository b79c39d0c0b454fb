#pragma once

#include <QLabel>

#include "desktop/control_view.h"
#include "forms_layer/label.h"

namespace desktop {

// If the label has a Click handler, Enter and Space click it.
class label_view : public QLabel, public control_view {
 public:
  label_view(forms_layer::label& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override;
  void show_colours() override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  forms_layer::label& label_;
};

}  // namespace desktop
