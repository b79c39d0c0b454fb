#include "desktop/message.h"

#include <QGridLayout>
#include <QMessageBox>

#include "desktop/designed_look.h"
#include "desktop/screen_text.h"

namespace desktop {

namespace {

// Leaves room for the title, whose font the window manager chooses.
void widen(QMessageBox& box) {
  constexpr int min_width = 260;
  auto* rows = qobject_cast<QGridLayout*>(box.layout());
  if (rows == nullptr) return;
  rows->addItem(new QSpacerItem(min_width, 0, QSizePolicy::Minimum), rows->rowCount(), 0, 1,
                rows->columnCount());
}

}  // namespace

void show_message(const std::string& title, const std::string& text, QWidget* owner) {
  QMessageBox box(owner);
  box.setWindowModality(Qt::ApplicationModal);
  // Some desktops set another font for message boxes.
  box.setFont(font_for({}));
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(to_screen(title));
  box.setText(normalize_newlines(to_screen(text), true));
  widen(box);
  box.setStandardButtons(QMessageBox::Ok);
  box.show();
  box.raise();
  box.activateWindow();
  box.exec();
}

}  // namespace desktop
