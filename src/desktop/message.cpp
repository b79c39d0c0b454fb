#include "desktop/message.h"

#include <QLabel>
#include <QMessageBox>

#include "desktop/screen_text.h"

namespace desktop {

namespace {

// Leaves room for the title, which is in a font of the window manager's.
void widen(QMessageBox& box) {
  constexpr int least_width = 220;
  auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (label != nullptr) label->setMinimumWidth(least_width);
}

}  // namespace

void show_message(const std::string& title, const std::string& text, QWidget* owner) {
  QMessageBox box(owner);
  box.setWindowModality(Qt::ApplicationModal);
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(to_screen(title));
  box.setText(with_plain_breaks(to_screen(text), true));
  widen(box);
  box.setStandardButtons(QMessageBox::Ok);
  box.show();
  box.raise();
  box.activateWindow();
  box.exec();
}

}  // namespace desktop
