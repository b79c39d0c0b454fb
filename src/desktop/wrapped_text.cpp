#include "desktop/wrapped_text.h"

#include <QFontMetrics>
#include <QTextOption>
#include <algorithm>

namespace desktop {

wrapped_text::band wrapped_text::set(const QString& text, const QFont& font,
                                     Qt::Alignment alignment, int width) {
  const int before = height();
  const QStringList parts = text.split(QLatin1Char('\n'));
  const bool as_before = width == width_ && alignment == alignment_ && font == font_;
  if (!as_before) paragraphs_.clear();
  font_ = font;
  alignment_ = alignment;
  width_ = width;
  paragraphs_.resize(static_cast<std::size_t>(parts.size()));
  band changed{before, 0};
  int top = 0;
  for (qsizetype i = 0; i < parts.size(); ++i) {
    paragraph& p = paragraphs_[static_cast<std::size_t>(i)];
    const int old_top = p.layout == nullptr ? top : p.top;
    const int old_bottom = old_top + p.height;
    const bool other = p.layout == nullptr || p.text != parts[i];
    if (other) {
      p.text = parts[i];
      lay_out(p);
    }
    if (other || p.top != top) {
      changed.top = std::min({changed.top, old_top, top});
      changed.bottom = std::max({changed.bottom, old_bottom, top + p.height});
    }
    p.top = top;
    top += p.height;
  }
  if (!as_before) return {0, std::max(top, before)};
  if (top < before) return {std::min(changed.top, top), before};
  return changed;
}

int wrapped_text::height() const {
  return paragraphs_.empty() ? 0 : paragraphs_.back().top + paragraphs_.back().height;
}

void wrapped_text::lay_out(paragraph& p) const {
  const int line_height = QFontMetrics(font_).height();
  QTextOption option(alignment_);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  p.layout = std::make_unique<QTextLayout>(p.text, font_);
  p.layout->setCacheEnabled(true);
  p.layout->setTextOption(option);
  p.height = 0;
  p.layout->beginLayout();
  for (QTextLine line = p.layout->createLine(); line.isValid(); line = p.layout->createLine()) {
    line.setLineWidth(width_);
    line.setPosition(QPointF(0, p.height));
    p.height += line_height;
  }
  p.layout->endLayout();
}

void wrapped_text::paint(QPainter& painter, const QPoint& top_left, const QRect& dirty) const {
  for (const paragraph& p : paragraphs_) {
    const QRect place(top_left.x(), top_left.y() + p.top, width_, p.height);
    if (place.intersects(dirty)) p.layout->draw(&painter, place.topLeft());
  }
}

void paint_wrapped_in_middle(QPainter& painter, const QRect& where, const QString& text) {
  wrapped_text block;
  block.set(text, painter.font(), Qt::AlignHCenter, where.width());
  const int above = std::max(0, (where.height() - block.height()) / 2);
  block.paint(painter, where.topLeft() + QPoint(0, above), where);
}

int wrapped_height(const QString& text, const QFont& font, int width) {
  wrapped_text block;
  block.set(text, font, Qt::AlignLeft, width);
  return block.height();
}

}  // namespace desktop
