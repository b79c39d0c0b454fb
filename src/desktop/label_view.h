#pragma once

#include <QLabel>

#include "desktop/control_view.h"
#include "forms_layer/label.h"

namespace desktop {

// A label that answers a click answers Enter and Space too.
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
