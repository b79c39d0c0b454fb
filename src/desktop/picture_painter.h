#pragma once

#include <QImage>
#include <QPainter>

#include "forms_layer/picture_box.h"

namespace desktop {

// What unset pixels of a picture show, for this run.
enum class backdrop { designed, chequered, black, white, magenta };
void set_backdrop(backdrop chosen);
backdrop chosen_backdrop();

// Paints the part of a picture box inside `dirty`: border, pixels, and the backdrop for unset
// pixels, by design BackColor. `rect` is that of the box. On a scaled screen pixels are sharp
// squares.
void paint_picture(QPainter& painter, const forms_layer::picture_box& box, const QRect& rect,
                   const QRect& dirty);

// The pixels of a picture box; unset ones are transparent.
QImage image_of(const forms_layer::picture_box& box);

}  // namespace desktop
