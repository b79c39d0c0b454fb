#pragma once

#include <QGroupBox>

#include "desktop/canvas.h"
#include "desktop/control_view.h"
#include "forms_layer/frame.h"

namespace desktop {

// A group box, filled by the canvas of the frame's controls.
class frame_view : public view_of<QGroupBox, forms_layer::frame> {
 public:
  frame_view(forms_layer::frame& shown, QWidget* parent);
  QWidget& focus_widget() override { return inside_; }
  canvas& inside() { return inside_; }

 protected:
  void show_content() override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  canvas& inside_;
  QString caption_;  // as much of it as fits
};

}  // namespace desktop
