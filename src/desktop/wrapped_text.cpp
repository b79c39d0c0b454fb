#include "desktop/wrapped_text.h"

#include <QFontMetrics>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>

namespace desktop {

namespace {

// Text in lines beneath one another.
class text_block {
 public:
  text_block(QString text, const QFont& font, Qt::Alignment alignment, int width)
      : layout_(text.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator)), font) {
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout_.setTextOption(option);
    lay_out(width, QFontMetrics(font).height());
  }

  int height() const { return height_; }
  void paint(QPainter& painter, const QPoint& top_left) { layout_.draw(&painter, top_left); }

 private:
  void lay_out(int width, int line_height) {
    layout_.beginLayout();
    for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
      line.setLineWidth(width);
      line.setPosition(QPointF(0, height_));
      height_ += line_height;
    }
    layout_.endLayout();
  }

  QTextLayout layout_;
  int height_ = 0;
};

}  // namespace

void paint_wrapped(QPainter& painter, const QRect& where, const QString& text, bool centred) {
  text_block block(text, painter.font(), centred ? Qt::AlignHCenter : Qt::AlignLeft, where.width());
  const int above = centred ? std::max(0, (where.height() - block.height()) / 2) : 0;
  block.paint(painter, where.topLeft() + QPoint(0, above));
}

int wrapped_height(const QString& text, const QFont& font, int width) {
  return text_block(text, font, Qt::AlignLeft, width).height();
}

}  // namespace desktop
