#include "desktop/label_view.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <algorithm>

#include "desktop/designed_look.h"
#include "desktop/keys.h"
#include "desktop/screen_text.h"
#include "forms_layer/user.h"

namespace desktop {

label_view::label_view(forms_layer::label& shown, QWidget* parent)
    : QLabel(parent), control_view(shown), label_(shown) {
  setTextFormat(Qt::PlainText);
  setFont(font_for(shown.designed.font));
  setAutoFillBackground(true);
  if (shown.Click) setFocusPolicy(Qt::TabFocus);
  // A label never covers the edge of a field beside it.
  lower();
}

void label_view::show_content() {
  const QString caption = normalize_newlines(to_screen(label_.Caption()));
  const int old_top = text_top();
  const wrapped_text::band changed = lines_.set(
      caption, font(), label_.designed.centred ? Qt::AlignHCenter : Qt::AlignLeft, width());
  // A label's own way is to paint all of itself.
  setAttribute(Qt::WA_UpdatesDisabled);
  setText(caption);
  setAttribute(Qt::WA_UpdatesDisabled, false);
  setAccessibleName(caption);
  if (text_top() != old_top) {
    update();
  } else if (changed.bottom > changed.top) {
    update(0, old_top + changed.top, width(), changed.bottom - changed.top);
  }
}

// Where the text begins. Pixels.
int label_view::text_top() const {
  return label_.designed.centred ? std::max(0, (height() - lines_.height()) / 2) : 0;
}

void label_view::show_colours() {
  setPalette(with_colours({}, QPalette::Window, QPalette::WindowText, label_.BackColor()));
}

void label_view::resizeEvent(QResizeEvent* /*event*/) { show_content(); }

void label_view::paintEvent(QPaintEvent* event) {
  QStylePainter painter(this);
  const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
  painter.setPen(palette().color(group, QPalette::WindowText));
  lines_.paint(painter, {0, text_top()}, event->rect());
  if (!focus_by_key_) return;
  QStyleOptionFocusRect option;
  option.initFrom(this);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

void label_view::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
  forms_layer::user::click(label_);
}

void label_view::keyPressEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat() && (is_enter(*event) || event->key() == Qt::Key_Space)) {
    forms_layer::user::click(label_);
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
