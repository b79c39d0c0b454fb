#include "desktop/message.h"

#include <QGridLayout>
#include <QMessageBox>

#include "desktop/designed_look.h"
#include "desktop/screen_text.h"

namespace desktop {

namespace {

// Leaves room for the title, whose font the window manager chooses.
constexpr int min_text_width = 260;

}  // namespace

void show_message(const std::string& title, const std::string& text, QWidget* owner) {
  QMessageBox box(owner);
  box.setWindowModality(Qt::ApplicationModal);
  // Some desktops set another font for message boxes.
  box.setFont(font_for({}));
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(to_screen(title));
  box.setText(normalize_newlines(to_screen(text), true));
  auto* rows = qobject_cast<QGridLayout*>(box.layout());
  if (rows != nullptr) rows->setColumnMinimumWidth(rows->columnCount() - 1, min_text_width);
  box.show();
  box.raise();
  box.activateWindow();
  box.exec();
}

}  // namespace desktop
