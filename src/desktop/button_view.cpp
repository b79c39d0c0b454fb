#include "desktop/button_view.h"

#include <QGuiApplication>

#include "desktop/keyboard.h"
#include "desktop/screen_text.h"
#include "forms_layer/user.h"

namespace desktop {

button_view::button_view(forms_layer::button& shown, QWidget* parent) : view_of(shown, parent) {
  connect(this, &QPushButton::clicked, this, [this] {
    const bool shift = (QGuiApplication::keyboardModifiers() & Qt::ShiftModifier) != 0;
    shift ? forms_layer::user::shift_click(shown_) : forms_layer::user::click(shown_);
  });
}

void button_view::show_content() {
  setText(escape_ampersands(normalize_newlines(to_screen(shown_.Caption()))));
}

void button_view::keyPressEvent(QKeyEvent* event) {
  if (is_enter(*event)) {
    if (!event->isAutoRepeat()) click();
  } else {
    QPushButton::keyPressEvent(event);
  }
}

}  // namespace desktop
