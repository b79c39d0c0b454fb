#include "desktop/rows_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <utility>

#include "desktop/dialogs.h"
#include "desktop/keyboard.h"
#include "desktop/screen_text.h"
#include "forms_layer/events.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

constexpr int icon_side = 16;
constexpr int text_margins = 6;

// Qt's own painting of a row, moved to the right by its indent.
class indenting : public QStyledItemDelegate {
 public:
  explicit indenting(rows_view& view) : QStyledItemDelegate(&view), view_(view) {}

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->rect.adjust(view_.indent(index.row()), 0, 0, 0);
  }

 private:
  const rows_view& view_;
};

}  // namespace

rows_view::rows_view(forms_layer::row_list& shown, QWidget* parent)
    : view_of(shown, parent), model_(*this) {
  setBackgroundRole(QPalette::Base);
  if (shown.kind == forms_layer::control_kind::file_list) {
    setAccessibleName(QStringLiteral("Files"));
  }
  setModel(&model_);
  setItemDelegate(new indenting(*this));
  setIconSize(QSize(icon_side, icon_side));
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(shown.designed.multi_select ? ExtendedSelection : SingleSelection);
  setHorizontalScrollMode(ScrollPerPixel);
}

void rows_view::show_content() {
  row_size_ = needed_size();
  pressed_row_ = -1;
  model_.reload();
  scrollToTop();
}

void rows_view::show_selection() {
  if (!shown_.SelectedRows().empty()) return show_selected_rows();
  const int row = shown_.ListIndex();
  if (row < 0 || row >= model_.rowCount({})) {
    clearSelection();
    setCurrentIndex({});
  } else if (row != currentIndex().row() || selectionModel()->selectedIndexes().size() != 1) {
    setCurrentIndex(model_.index(row));
  }
}

void rows_view::show_selected_rows() {
  QItemSelection rows;
  for (const std::int32_t row : shown_.SelectedRows()) {
    rows.append(QItemSelectionRange(model_.index(row)));
  }
  selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

void rows_view::report_selection() {
  std::vector<std::int32_t> rows;
  for (const QModelIndex& index : selectionModel()->selectedIndexes()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  forms_layer::user::select_rows(shown_, rows);
  if (!forms_layer::handler_running()) show_selection();
}

// Ctrl or Shift with the mouse, or with a key that moves the cursor or selects.
bool rows_view::extends_selection(const QInputEvent& event) const {
  const bool has_modifier = (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
  if (selectionMode() != ExtendedSelection || !has_modifier) return false;
  if (event.type() != QEvent::KeyPress) return event.isPointerEvent();
  const int key = static_cast<const QKeyEvent&>(event).key();
  const bool is_page = key == Qt::Key_PageUp || key == Qt::Key_PageDown;
  const bool with_ctrl = (event.modifiers() & Qt::ControlModifier) != 0;
  return is_cursor_key(key) || is_page || (with_ctrl && (key == Qt::Key_Space || key == Qt::Key_A));
}

find_bar* rows_view::search() {
  if (search_ == nullptr && shown_.Find) {
    search_ = new find_bar(shown_, *this, [this](int row) {
      choose(row);
      scrollTo(model_.index(row));
    });
  }
  return search_;
}

void rows_view::choose(int row) {
  forms_layer::user::select_row(shown_, row);
  // While a handler runs the event is queued, and the end of the handler syncs the selection.
  if (!forms_layer::handler_running()) show_selection();
}

void rows_view::mousePressEvent(QMouseEvent* event) {
  const QModelIndex pressed = indexAt(event->position().toPoint());
  pressed_row_ = pressed.row();
  pressed_at_ = event->position().toPoint();
  chooses_on_release_ = false;
  if (event->button() != Qt::LeftButton || !pressed.isValid()) return;
  if (extends_selection(*event)) {
    QListView::mousePressEvent(event);
    report_selection();
    return;
  }
  const std::vector<std::int32_t>& several = shown_.SelectedRows();
  const bool is_selected = pressed.row() == shown_.ListIndex() ||
                           std::binary_search(several.begin(), several.end(), pressed.row());
  chooses_on_release_ = shown_.Drag && is_selected;
  if (chooses_on_release_) return;
  setCurrentIndex(pressed);
  choose(pressed.row());
}

void rows_view::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  if (!std::exchange(chooses_on_release_, false) || pressed_row_ < 0) return;
  setCurrentIndex(model_.index(pressed_row_));
  choose(pressed_row_);
}

// A drag does not select. It takes the rows to another program.
void rows_view::mouseMoveEvent(QMouseEvent* event) {
  const int distance = (event->position().toPoint() - pressed_at_).manhattanLength();
  const bool drags = (event->buttons() & Qt::LeftButton) != 0 && shown_.Drag && pressed_row_ >= 0 &&
                     distance >= QApplication::startDragDistance();
  if (!drags) return;
  chooses_on_release_ = false;
  forms_layer::user::drag_rows(shown_, std::exchange(pressed_row_, -1));
}

void rows_view::row_double_clicked(int row) { forms_layer::user::double_click(shown_, row); }

// The first press may have scrolled another row under the mouse.
void rows_view::mouseDoubleClickEvent(QMouseEvent* event) {
  const int row = std::exchange(pressed_row_, -1);
  if (event->button() == Qt::LeftButton && row >= 0) row_double_clicked(row);
}

void rows_view::keyPressEvent(QKeyEvent* event) {
  if (is_enter(*event)) {
    if (currentIndex().isValid()) enter_pressed(currentIndex().row());
    return;
  }
  // Qt makes the first row current when the list gets the focus. The first arrow key must select
  // that row, not the next one.
  if (!selectionModel()->hasSelection()) setCurrentIndex({});
  const int before = currentIndex().row();
  key_time_ = event->timestamp();
  QListView::keyPressEvent(event);
  if (extends_selection(*event)) return report_selection();
  const int now = currentIndex().row();
  if (now >= 0 && now != before) choose(now);
}

// Qt compares the times at which it handles the letters. Letters typed during a handler are handled
// late, and each can start the next handler.
void rows_view::keyboardSearch(const QString& letters) {
  const int rows = model_.rowCount({});
  if (rows == 0) return;
  const quint64 pause = key_time_ - std::exchange(letter_time_, key_time_);
  const auto max_pause = static_cast<quint64>(QApplication::keyboardInputInterval());
  word_ = pause > max_pause ? letters : word_ + letters;
  // One letter, also repeated, leads to the next row.
  const bool is_one_letter = word_.count(word_.front()) == word_.size();
  const int start = std::max(0, currentIndex().row() + (is_one_letter ? 1 : 0)) % rows;
  const QModelIndexList found =
      model_.match(model_.index(start), Qt::DisplayRole, is_one_letter ? word_.left(1) : word_, 1,
                   Qt::MatchStartsWith | Qt::MatchWrap);
  if (!found.isEmpty()) setCurrentIndex(found.front());
}

// The row of the list, or the first selected one if that is not selected.
int rows_view::row_of_keys() const {
  const std::vector<std::int32_t>& selected = shown_.SelectedRows();
  const int row = shown_.ListIndex();
  const bool is_selected =
      selected.empty() || std::binary_search(selected.begin(), selected.end(), row);
  return is_selected ? row : selected.front();
}

void rows_view::contextMenuEvent(QContextMenuEvent* event) {
  const bool by_key = event->reason() == QContextMenuEvent::Keyboard;
  const QModelIndex on = by_key ? model_.index(row_of_keys()) : indexAt(event->pos());
  if (!on.isValid()) return;
  if (by_key) scrollTo(on);
  const QPoint middle = viewport()->mapToGlobal(visualRect(on).center());
  forms_layer::user::open_menu(shown_, on.row(),
                               as_screen_point(by_key ? middle : event->globalPos()));
}

// The tool tip of the list, then that of the row. Qt would show only that of the row.
bool rows_view::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QListView::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const QModelIndex on = indexAt(help->pos());
  const std::string tip = on.isValid() && shown_.RowToolTip ? shown_.RowToolTip(on.row()) : "";
  if (tip.empty()) return false;
  QToolTip::showText(help->globalPos(), as_tool_tip(shown_.ToolTipText() + "\n" + tip), viewport(),
                     visualRect(on));
  return true;
}

// The list copies its row, which a key of the window must not take.
bool rows_view::event(QEvent* event) {
  const bool copies = event->type() == QEvent::ShortcutOverride &&
                      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy);
  if (copies) event->accept();
  return copies || QListView::event(event);
}

// In a list of single rows Ctrl with Space or an arrow key would remove the highlight.
QItemSelectionModel::SelectionFlags rows_view::selectionCommand(const QModelIndex& index,
                                                                const QEvent* event) const {
  const bool is_input = event != nullptr && event->isInputEvent();
  if (is_input && extends_selection(*static_cast<const QInputEvent*>(event))) {
    return QListView::selectionCommand(index, event);
  }
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

// The width of the widest row. Qt would lay out the text of every row. Each character that occurs
// is measured once.
QSize rows_view::needed_size() const {
  std::array<int, 256> widths;
  widths.fill(-1);
  const auto width_of = [&](char c) {
    int& width = widths[static_cast<unsigned char>(c)];
    if (width < 0) width = fontMetrics().horizontalAdvance(to_screen({&c, 1}));
    return width;
  };
  int widest = 0;
  for (int row = 0; row < shown_.ListCount(); ++row) {
    int width = indent(row);
    for (const char c : shown_.List(row)) width += width_of(c);
    widest = std::max(widest, width);
  }
  const QSize text(widest + text_margins, fontMetrics().height() + 1);
  if (shown_.ListCount() == 0 || row_icon(0).isNull()) return text;
  return {text.width() + icon_side + text_margins, std::max(text.height(), icon_side)};
}

void rows_view::rows_model::reload() {
  beginResetModel();
  count_ = view_.list().ListCount();
  endResetModel();
}

int rows_view::rows_model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

QVariant rows_view::rows_model::data(const QModelIndex& index, int role) const {
  // The control may have fewer rows than the screen knows.
  if (!index.isValid() || index.row() >= view_.list().ListCount()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return to_screen(view_.list().List(index.row()));
    case Qt::DecorationRole:
      return view_.row_icon(index.row());
    case Qt::SizeHintRole:
      return view_.row_size();
    default:
      return {};
  }
}

}  // namespace desktop
