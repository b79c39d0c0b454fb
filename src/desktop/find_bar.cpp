#include "desktop/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

#include "desktop/keyboard.h"
#include "desktop/screen_text.h"

namespace desktop {

find_bar::find_bar(const forms_layer::row_list& list, QWidget& list_widget,
                   std::function<void(int row)> choose)
    : QFrame(list_widget.parentWidget()),
      list_(list),
      list_widget_(list_widget),
      choose_(std::move(choose)) {
  setObjectName(QStringLiteral("find"));
  setFrameShape(StyledPanel);
  setAutoFillBackground(true);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(2, 2, 4, 2);
  row->addWidget(&field_, 1);
  row->addWidget(&count_);
  connect(&field_, &QLineEdit::textChanged, this, [this] { show_count(); });
  hide();
}

void find_bar::find_text() {
  by_number_ = false;
  open(QStringLiteral("Find"));
}

void find_bar::find_number() {
  by_number_ = true;
  field_.clear();
  open(QStringLiteral("Go to number"));
}

void find_bar::open(const QString& hint) {
  constexpr int width = 190;
  field_.setPlaceholderText(hint);
  field_.setAccessibleName(hint);
  const QRect corner = list_widget_.geometry();
  const int height = sizeHint().height();
  setGeometry(corner.left(), corner.bottom() + 1 - height, width, height);
  show();
  raise();
  field_.selectAll();
  field_.setFocus(Qt::ShortcutFocusReason);
  show_count();
}

std::vector<std::int32_t> find_bar::hits() const {
  if (!by_number_) return list_.Find(from_screen(field_.text()));
  const int row = field_.text().toInt() - 1;
  if (row < 0 || row >= list_.ListCount()) return {};
  return {row};
}

void find_bar::show_count() {
  const std::vector<std::int32_t> found = hits();
  const auto at = std::find(found.begin(), found.end(), list_.ListIndex());
  QString text = QString::number(found.size());
  if (at != found.end()) text = QStringLiteral("%1 of %2").arg(at - found.begin() + 1).arg(text);
  if (by_number_) text = QStringLiteral("of %1").arg(list_.ListCount());
  count_.setText(field_.text().isEmpty() && !by_number_ ? QString() : text);
}

void find_bar::find_next() {
  const std::vector<std::int32_t> found = hits();
  const auto next = std::upper_bound(found.begin(), found.end(), list_.ListIndex());
  if (!found.empty()) choose_(next == found.end() ? found.front() : *next);
  show_count();
}

void find_bar::find_previous() {
  const std::vector<std::int32_t> found = hits();
  const auto next = std::lower_bound(found.begin(), found.end(), list_.ListIndex());
  if (!found.empty()) choose_(next == found.begin() ? found.back() : *(next - 1));
  show_count();
}

bool find_bar::close_bar() {
  if (!isVisible()) return false;
  hide();
  list_widget_.setFocus(Qt::OtherFocusReason);
  return true;
}

void find_bar::keyPressEvent(QKeyEvent* event) {
  if (is_enter(*event)) {
    (event->modifiers() & Qt::ShiftModifier) != 0 ? find_previous() : find_next();
    if (by_number_) close_bar();
  } else if (event->key() == Qt::Key_Escape) {
    close_bar();
  } else {
    QFrame::keyPressEvent(event);
  }
}

}  // namespace desktop
