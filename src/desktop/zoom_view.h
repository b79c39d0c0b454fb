#pragma once

#include <QScrollArea>

#include "forms_layer/picture_box.h"

namespace desktop {

// One picture of a canvas, enlarged, over the others and below the controls.
class zoom_view : public QScrollArea {
 public:
  explicit zoom_view(QWidget& on_canvas);

  static constexpr int factors[] = {1, 2, 3, 4, 8};

  // Shows a picture in the middle of `around` and inside `area`. Call while it is open.
  void show_picture(const forms_layer::picture_box& shown, const QRect& around, const QRect& area);
  // Leaves the frame without a picture.
  void show_empty();
  const forms_layer::picture_box* picture() const { return picture_; }

  // Above 1. The next picture is shown with it.
  void set_factor(int factor) { factor_ = factor; }
  // Hides it: own size.
  void end();
  int factor() const { return factor_; }
  bool is_open() const { return factor_ > 1; }
  // The next larger or smaller factor.
  int stepped(int steps) const;

  void paint(QPainter& painter) const;

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  const forms_layer::picture_box* picture_ = nullptr;
  int factor_ = 1;
};

}  // namespace desktop
