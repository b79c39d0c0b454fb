#include "desktop/drive_view.h"

#include <QWheelEvent>

#include "desktop/screen_text.h"
#include "forms_layer/events.h"
#include "forms_layer/user.h"

namespace desktop {

drive_view::drive_view(forms_layer::drive_list& shown, QWidget* parent) : view_of(shown, parent) {
  setAccessibleName(QStringLiteral("Drives"));
  connect(this, &QComboBox::activated, this, [this](int row) {
    forms_layer::user::choose(shown_, row);
    // The tool may have selected another drive.
    if (!forms_layer::handler_running()) show_selection();
  });
}

void drive_view::show_content() {
  clear();
  for (int row = 0; row < shown_.ListCount(); ++row) addItem(to_screen(shown_.List(row)));
}

void drive_view::show_selection() { setCurrentIndex(shown_.ListIndex()); }

void drive_view::show_colours() {
  const forms_layer::colour back = shown_.BackColor();
  const QPalette list = with_colours({}, QPalette::Base, QPalette::Text, back);
  setPalette(with_colours(list, QPalette::Button, QPalette::ButtonText, back));
}

// The wheel over the closed list would change the drive by accident.
void drive_view::wheelEvent(QWheelEvent* event) { event->ignore(); }

}  // namespace desktop
