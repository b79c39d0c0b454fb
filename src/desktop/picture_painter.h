#pragma once

#include <QImage>
#include <QPainter>

#include "forms_layer/picture_box.h"

namespace desktop {

// Paints the part of a picture box at `place` that lies in `dirty`: border, pixels, and BackColor
// where pixels are unset. A pixel of the box is a sharp square on a scaled screen.
void paint_picture(QPainter& painter, const forms_layer::picture_box& box, const QRect& place,
                   const QRect& dirty);

// The pixels of a picture box, where unset ones are transparent.
QImage image_of(const forms_layer::picture_box& box);

}  // namespace desktop
