#include "desktop/picture_painter.h"

#include <QApplication>
#include <QPixmap>
#include <QStyle>
#include <vector>

#include "desktop/designed_look.h"

namespace desktop {

namespace {

using forms_layer::picture_box;

backdrop behind = backdrop::designed;

QBrush chequered() {
  constexpr int side = 8;
  QPixmap tile(2 * side, 2 * side);
  tile.fill(QColor(204, 204, 204));
  QPainter painter(&tile);
  painter.fillRect(0, 0, side, side, QColor(153, 153, 153));
  painter.fillRect(side, side, side, side, QColor(153, 153, 153));
  return tile;
}

QBrush backdrop_of(const QColor& designed) {
  switch (behind) {
    case backdrop::designed:
      return designed;
    case backdrop::chequered:
      return chequered();
    case backdrop::black:
      return QColor(Qt::black);
    case backdrop::white:
      return QColor(Qt::white);
    case backdrop::magenta:
      return QColor(Qt::magenta);
  }
  return designed;
}

// Filling takes less time than qDrawPlainRect.
void paint_border(QPainter& painter, const QRect& rect, const QColor& colour) {
  painter.fillRect(QRect(rect.topLeft(), QSize(rect.width(), 1)), colour);
  painter.fillRect(QRect(rect.bottomLeft(), QSize(rect.width(), 1)), colour);
  painter.fillRect(QRect(rect.topLeft(), QSize(1, rect.height())), colour);
  painter.fillRect(QRect(rect.topRight(), QSize(1, rect.height())), colour);
}

// The pixels of `part` of the drawing area, in memory that the next call uses again.
QImage converted(const picture_box& box, const QRect& part, QRgb unset) {
  static std::vector<QRgb> rows;
  rows.resize(static_cast<std::size_t>(part.width()) * static_cast<std::size_t>(part.height()));
  QRgb* to = rows.data();
  for (int y = part.top(); y <= part.bottom(); ++y) {
    const forms_layer::colour* from =
        box.pixels() + static_cast<std::ptrdiff_t>(y) * box.columns() + part.left();
    for (int x = 0; x < part.width(); ++x) {
      *to++ = from[x] == picture_box::unset ? unset : as_rgb(from[x]);
    }
  }
  return QImage(reinterpret_cast<const uchar*>(rows.data()), part.width(), part.height(),
                part.width() * qsizetype{sizeof(QRgb)},
                qAlpha(unset) == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32);
}

}  // namespace

void set_backdrop(backdrop chosen) { behind = chosen; }

backdrop chosen_backdrop() { return behind; }

void paint_picture(QPainter& painter, const picture_box& box, const QRect& rect,
                   const QRect& dirty) {
  const QColor designed = on_screen(box.BackColor());
  // A swatch of a palette has no pixels.
  const QBrush background = box.pixels() == nullptr ? designed : backdrop_of(designed);
  const QRect inner = rect.adjusted(1, 1, -1, -1);
  if (!inner.contains(dirty)) {
    const QPalette theme = QApplication::palette();
    paint_border(painter, rect,
                 mix(theme.color(QPalette::WindowText), theme.color(QPalette::Window)));
  }
  painter.setBrushOrigin(inner.topLeft());
  painter.fillRect(inner & dirty, background);
  if (*box.designed.picture != '\0') {
    // Qt caches the pictures of files.
    const QPixmap picture(QStringLiteral(":/pictures/") + QLatin1String(box.designed.picture));
    QApplication::style()->drawItemPixmap(&painter, inner, Qt::AlignCenter, picture);
  }
  if (box.pixels() == nullptr) return;
  const QRect drawn(inner.topLeft(), QSize(box.columns(), box.rows()));
  const QRect part = drawn & inner & dirty;
  if (part.isEmpty()) return;
  const QRgb unset = background.style() == Qt::SolidPattern ? background.color().rgb() : 0;
  painter.drawImage(part.topLeft(), converted(box, part.translated(-inner.topLeft()), unset));
}

QImage image_of(const picture_box& box) {
  return converted(box, QRect(0, 0, box.columns(), box.rows()), qRgba(0, 0, 0, 0)).copy();
}

}  // namespace desktop
