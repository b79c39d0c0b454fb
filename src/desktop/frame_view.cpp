#include "desktop/frame_view.h"

#include <QPainter>
#include <algorithm>

#include "desktop/designed_look.h"
#include "desktop/screen_text.h"

namespace desktop {

namespace {

constexpr int caption_left = 8;
constexpr int caption_margin = 2;

}  // namespace

frame_view::frame_view(forms_layer::frame& shown, QWidget* parent)
    : surface(shown, parent), control_view(shown), frame_(shown) {
  setFont(font_for(shown.designed.font));
}

void frame_view::show_content() {
  QRect changed = caption_place();
  caption_ = to_screen(frame_.Caption());
  setAccessibleName(caption_);
  changed |= caption_place();
  update(changed);
}

QRect frame_view::caption_place() const {
  if (caption_.isEmpty()) return {};
  const int wanted = fontMetrics().horizontalAdvance(caption_) + 2 * caption_margin;
  const int most = std::max(0, width() - 2 * caption_left);
  return QRect(caption_left, 0, std::min(wanted, most), fontMetrics().height());
}

void frame_view::paint_over_ground(QPainter& painter, const QRect& dirty) {
  const QColor back = on_screen(ground());
  const QColor text = text_on(ground());
  const int line_top = fontMetrics().height() / 2;
  painter.setPen(line_colour(back, text));
  painter.drawRect(0, line_top, width() - 1, height() - 1 - line_top);
  const QRect caption = caption_place();
  if (!caption.intersects(dirty)) return;
  painter.fillRect(caption, back);
  const QRect inside = caption.adjusted(caption_margin, 0, 0, 0);
  painter.setPen(isEnabled() ? text : between(text, between(text, back)));
  painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   fontMetrics().elidedText(caption_, Qt::ElideRight, inside.width()));
}

}  // namespace desktop
