#include "desktop/picture_painter.h"

#include <QApplication>
#include <QImage>
#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "desktop/designed_look.h"

namespace desktop {

namespace {

using forms_layer::picture_box;

QRgb as_rgb(forms_layer::colour c) {
  return 0xFF000000U | forms_layer::red_of(c) << 16U | forms_layer::green_of(c) << 8U |
         forms_layer::blue_of(c);
}

void paint_border(QPainter& painter, const QRect& rect, const QColor& colour) {
  const QRect inner = rect.adjusted(1, 1, -1, -1);
  painter.fillRect(QRect(rect.topLeft(), QSize(rect.width(), 1)), colour);
  painter.fillRect(QRect(rect.bottomLeft(), QSize(rect.width(), 1)), colour);
  painter.fillRect(QRect(rect.left(), inner.top(), 1, inner.height()), colour);
  painter.fillRect(QRect(rect.right(), inner.top(), 1, inner.height()), colour);
}

// The pixels of `part` of the drawing area, row by row, in reused memory.
const std::vector<QRgb>& converted(const picture_box& box, const QRect& part, QRgb background) {
  static std::vector<QRgb> rows;
  rows.resize(static_cast<std::size_t>(part.width()) * static_cast<std::size_t>(part.height()));
  QRgb* to = rows.data();
  for (int y = part.top(); y <= part.bottom(); ++y) {
    const forms_layer::colour* from =
        box.pixels() + static_cast<std::ptrdiff_t>(y) * box.columns() + part.left();
    for (int x = 0; x < part.width(); ++x) {
      *to++ = from[x] == picture_box::unset ? background : as_rgb(from[x]);
    }
  }
  return rows;
}

// A picture from the program's resources, loaded once; null if there is none of that name.
const QImage& resource_picture(const char* name) {
  static std::map<std::string, QImage> read;
  const auto [at, is_new] = read.try_emplace(name);
  if (is_new) at->second.load(QStringLiteral(":/pictures/") + QLatin1String(name));
  return at->second;
}

void paint_designed_picture(QPainter& painter, const char* name, const QRect& inner) {
  const QImage& picture = resource_picture(name);
  QRect drawn = picture.rect();
  drawn.moveCenter(inner.center());
  const QRect shown = drawn & inner;
  painter.drawImage(shown, picture, shown.translated(-drawn.topLeft()));
}

}  // namespace

void paint_picture(QPainter& painter, const picture_box& box, const QRect& rect,
                   const QRect& dirty) {
  const QColor background = on_screen(box.BackColor());
  const QRect inner = rect.adjusted(1, 1, -1, -1);
  if (!inner.contains(dirty)) {
    const QPalette theme = QApplication::palette();
    paint_border(painter, rect,
                 mix(theme.color(QPalette::WindowText), theme.color(QPalette::Window)));
  }
  painter.fillRect(inner & dirty, background);
  if (*box.designed.picture != '\0') paint_designed_picture(painter, box.designed.picture, inner);
  if (box.pixels() == nullptr) return;
  const QRect drawn(inner.topLeft(), QSize(box.columns(), box.rows()));
  const QRect part = drawn & inner & dirty;
  if (part.isEmpty()) return;
  const std::vector<QRgb>& rows =
      converted(box, part.translated(-inner.topLeft()), background.rgb());
  const QImage image(reinterpret_cast<const uchar*>(rows.data()), part.width(), part.height(),
                     qsizetype{part.width()} * static_cast<qsizetype>(sizeof(QRgb)),
                     QImage::Format_RGB32);
  painter.drawImage(part.topLeft(), image);
}

QImage image_of(const picture_box& box) {
  QImage image(box.columns(), box.rows(), QImage::Format_ARGB32);
  const std::vector<QRgb>& rows = converted(box, image.rect(), qRgba(0, 0, 0, 0));
  for (int y = 0; y < image.height(); ++y) {
    std::copy_n(rows.begin() + std::ptrdiff_t{y} * image.width(), image.width(),
                reinterpret_cast<QRgb*>(image.scanLine(y)));
  }
  return image;
}

}  // namespace desktop
