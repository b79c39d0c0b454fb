#include "desktop/frame_view.h"

#include <qdrawutil.h>

#include <QPainter>

#include "desktop/screen_text.h"

namespace desktop {

namespace {

constexpr int caption_left = 8;
constexpr int caption_margin = 2;

}  // namespace

frame_view::frame_view(forms_layer::frame& shown, QWidget* parent)
    : view_of(shown, parent), inside_(*new canvas(shown, this)) {
  setAutoFillBackground(true);
}

void frame_view::show_content() {
  const QString caption = to_screen(shown_.Caption());
  // As a title of Qt an ampersand would mark a shortcut.
  caption_ = fontMetrics().elidedText(caption, Qt::ElideRight, width() - 2 * caption_left);
  setAccessibleName(caption);
  update();
}

void frame_view::resizeEvent(QResizeEvent* /*event*/) {
  inside_.resize(size());
  show_content();
}

// Fusion draws the line below the caption, where the design has controls.
void frame_view::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QColor back = palette().color(QPalette::Window);
  const QColor text = palette().color(QPalette::WindowText);
  qDrawPlainRect(&painter, rect().adjusted(0, fontMetrics().height() / 2, 0, 0),
                 mix(back, mix(back, text)));
  if (caption_.isEmpty()) return;
  const QRect caption(caption_left, 0,
                      fontMetrics().horizontalAdvance(caption_) + 2 * caption_margin,
                      fontMetrics().height());
  painter.fillRect(caption, back);
  painter.setPen(text);
  painter.drawText(caption, Qt::AlignCenter | Qt::TextSingleLine, caption_);
}

}  // namespace desktop
