#include "desktop/message.h"

#include <QMessageBox>

#include "desktop/screen_text.h"

namespace desktop {

void show_message(const std::string& title, const std::string& text, QWidget* owner) {
  QMessageBox box(owner);
  box.setWindowModality(Qt::ApplicationModal);
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(to_screen(title));
  box.setText(with_plain_breaks(to_screen(text), true));
  box.setStandardButtons(QMessageBox::Ok);
  box.show();
  box.raise();
  box.activateWindow();
  box.exec();
}

}  // namespace desktop
