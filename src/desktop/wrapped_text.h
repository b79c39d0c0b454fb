#pragma once

#include <QPainter>
#include <QString>

namespace desktop {

// Paints text that wraps at blanks, or anywhere in a word that is wider than `where`. With
// `centred` it stands in the middle both ways, else at the left and top.
void paint_wrapped(QPainter& painter, const QRect& where, const QString& text, bool centred);

}  // namespace desktop
