#pragma once

#include "desktop/control_view.h"
#include "desktop/surface.h"
#include "forms_layer/frame.h"

namespace desktop {

// A line all round with a caption in it.
class frame_view : public surface, public control_view {
 public:
  frame_view(forms_layer::frame& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override;
  void show_colours() override { update(); }
  forms_layer::colour ground() const override { return frame_.BackColor(); }
  void paint_over_ground(QPainter& painter, const QRect& dirty) override;

 private:
  QRect caption_place() const;

  forms_layer::frame& frame_;
  QString caption_;
};

}  // namespace desktop
