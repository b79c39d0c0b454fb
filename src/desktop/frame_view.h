#pragma once

#include <QGroupBox>

#include "desktop/canvas.h"
#include "desktop/control_view.h"
#include "forms_layer/frame.h"

namespace desktop {

// A group box, filled by the canvas of the frame's controls.
class frame_view : public QGroupBox, public control_view {
 public:
  frame_view(forms_layer::frame& shown, QWidget* parent);
  QWidget& widget() override { return *this; }
  QWidget& focus_widget() override { return inside_; }
  canvas& inside() { return inside_; }

 protected:
  void show_content() override;
  void show_colours() override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  forms_layer::frame& frame_;
  canvas& inside_;
};

}  // namespace desktop
