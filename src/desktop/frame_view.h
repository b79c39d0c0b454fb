#pragma once

#include "desktop/control_view.h"
#include "desktop/surface.h"
#include "platform/frame.h"

namespace desktop {

// A line all round with a caption in it.
class frame_view : public surface, public control_view {
 public:
  frame_view(platform::frame& shown, QWidget* parent);
  QWidget& widget() override { return *this; }

 protected:
  void show_content() override;
  void show_colours() override { update(); }
  platform::colour ground() const override { return frame_.BackColor(); }
  void paint_over_ground(QPainter& painter, const QRect& dirty) override;

 private:
  QRect caption_place() const;

  platform::frame& frame_;
  QString caption_;
};

}  // namespace desktop
