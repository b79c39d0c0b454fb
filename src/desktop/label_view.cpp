#include "desktop/label_view.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/keyboard.h"
#include "desktop/screen_text.h"
#include "forms_layer/user.h"

namespace desktop {

label_view::label_view(forms_layer::label& shown, QWidget* parent) : view_of(shown, parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setAlignment(shown.designed.centred ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignTop);
  setAutoFillBackground(true);
  if (shown.Click) setFocusPolicy(Qt::TabFocus);
  // A label must not cover the edge of a field beside it.
  lower();
}

void label_view::show_content() { setText(normalize_newlines(to_screen(shown_.Caption()))); }

void label_view::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
  forms_layer::user::click(shown_);
}

void label_view::keyPressEvent(QKeyEvent* event) {
  if (!event->isAutoRepeat() && (is_enter(*event) || event->key() == Qt::Key_Space)) {
    forms_layer::user::click(shown_);
  } else {
    QLabel::keyPressEvent(event);
  }
}

}  // namespace desktop
