#include "desktop/wrapped_text.h"

#include <QTextLayout>
#include <QTextOption>
#include <algorithm>

namespace desktop {

namespace {

// Lays the text out in lines beneath one another; the height of all of them.
double lay_out(QTextLayout& layout, double width, double line_height) {
  double top = 0;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    line.setPosition({0, top});
    top += line_height;
  }
  layout.endLayout();
  return top;
}

}  // namespace

void paint_wrapped(QPainter& painter, const QRect& where, const QString& text, bool centred) {
  QString lines = text;
  lines.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
  QTextLayout layout(lines, painter.font());
  QTextOption option(centred ? Qt::AlignHCenter : Qt::AlignLeft);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  const double height = lay_out(layout, where.width(), painter.fontMetrics().height());
  const double above = centred ? std::max(0.0, (where.height() - height) / 2) : 0.0;
  layout.draw(&painter, QPointF(where.left(), where.top() + static_cast<int>(above)));
}

}  // namespace desktop
