#include "desktop/label_view.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include "desktop/designed_look.h"
#include "desktop/keys.h"
#include "desktop/screen_text.h"
#include "desktop/wrapped_text.h"
#include "platform/user.h"

namespace desktop {

label_view::label_view(platform::label& shown, QWidget* parent)
    : QLabel(parent), control_view(shown), label_(shown) {
  setTextFormat(Qt::PlainText);
  setFont(font_for(shown.designed.font));
  setAutoFillBackground(true);
  if (shown.Click) setFocusPolicy(Qt::TabFocus);
  // A label never covers the edge of a field beside it.
  lower();
}

void label_view::show_content() {
  setText(with_plain_breaks(to_screen(label_.Caption())));
  setAccessibleName(text());
}

void label_view::show_colours() {
  setPalette(with_colours({}, QPalette::Window, QPalette::WindowText, label_.BackColor()));
}

void label_view::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  painter.setPen(palette().color(group, QPalette::WindowText));
  paint_wrapped(painter, rect(), text(), label_.designed.centred);
  if (!focus_by_key_) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void label_view::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
  platform::user::click(label_);
}

void label_view::keyPressEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat() && (is_enter(*event) || event->key() == Qt::Key_Space)) {
    platform::user::click(label_);
  } else {
    QLabel::keyPressEvent(event);
  }
}

void label_view::focusInEvent(QFocusEvent* event) {
  focus_by_key_ =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  update();
}

void label_view::focusOutEvent(QFocusEvent* /*event*/) {
  focus_by_key_ = false;
  update();
}

}  // namespace desktop
