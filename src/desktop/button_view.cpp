#include "desktop/button_view.h"

#include "desktop/designed_look.h"
#include "desktop/keys.h"
#include "desktop/screen_text.h"
#include "forms_layer/user.h"

namespace desktop {

button_view::button_view(forms_layer::button& shown, QWidget* parent)
    : QPushButton(parent), control_view(shown), button_(shown) {
  setFont(font_for(shown.designed.font));
  connect(this, &QPushButton::clicked, this, [this] { forms_layer::user::click(button_); });
}

void button_view::show_content() {
  setText(escape_ampersands(normalize_newlines(to_screen(button_.Caption()))));
}

void button_view::show_colours() {
  const forms_layer::colour back = button_.BackColor();
  const bool as_theme = back == forms_layer::system_button_face;
  setPalette(as_theme ? QPalette()
                      : with_colours({}, QPalette::Button, QPalette::ButtonText, back));
}

void button_view::keyPressEvent(QKeyEvent* event) {
  if (is_enter(*event)) {
    if (!event->isAutoRepeat()) click();
  } else {
    QPushButton::keyPressEvent(event);
  }
}

}  // namespace desktop
