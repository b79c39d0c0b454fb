#pragma once

#include <QPainter>
#include <QString>

namespace desktop {

// Paints text that wraps at blanks, or anywhere in a word that is wider than `where`. With
// `centred` it stands in the middle both ways, else at the left and top.
void paint_wrapped(QPainter& painter, const QRect& where, const QString& text, bool centred);

// The height in pixels that the text takes when it wraps at `width`.
int wrapped_height(const QString& text, const QFont& font, int width);

}  // namespace desktop
