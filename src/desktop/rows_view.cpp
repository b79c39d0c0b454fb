#include "desktop/rows_view.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <array>

#include "desktop/designed_look.h"
#include "desktop/keys.h"
#include "desktop/screen_text.h"
#include "forms_layer/events.h"

namespace desktop {

namespace {

constexpr int text_margin = 2;

}  // namespace

rows_view::rows_view(forms_layer::control& shown, QWidget* parent)
    : QListView(parent), control_view(shown), model_(*this), painter_(*this) {
  setFont(font_for(shown.designed.font));
  setModel(&model_);
  setItemDelegate(&painter_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setHorizontalScrollMode(ScrollPerPixel);
}

int rows_view::row_height() const { return fontMetrics().height() + 1; }

void rows_view::show_content() {
  width_ = widest_row();
  model_.reload();
}

void rows_view::show_selection() {
  const int row = selected_row();
  if (row < 0 || row >= model_.rowCount({})) {
    clearSelection();
    setCurrentIndex({});
  } else if (row != currentIndex().row() || !selectionModel()->hasSelection()) {
    setCurrentIndex(model_.index(row));
  }
}

void rows_view::show_colours() {
  setPalette(with_colours({}, QPalette::Base, QPalette::Text, control.BackColor()));
}

void rows_view::choose(int row) {
  row_chosen(row);
  if (!forms_layer::handler_running()) show_selection();
}

void rows_view::mousePressEvent(QMouseEvent* event) {
  const QModelIndex pressed = indexAt(event->position().toPoint());
  if (event->button() != Qt::LeftButton || !pressed.isValid()) return;
  const int row = pressed.row();
  setCurrentIndex(pressed);
  choose(row);
}

// A drag does not select.
void rows_view::mouseMoveEvent(QMouseEvent* /*event*/) {}

void rows_view::mouseDoubleClickEvent(QMouseEvent* event) {
  const QModelIndex pressed = indexAt(event->position().toPoint());
  if (event->button() == Qt::LeftButton && pressed.isValid()) row_double_clicked(pressed.row());
}

void rows_view::keyPressEvent(QKeyEvent* event) {
  if (is_enter(*event)) {
    if (currentIndex().isValid()) enter_pressed(currentIndex().row());
    return;
  }
  // Qt makes the first row the current one when the list gets the focus; the first arrow key
  // should come to it and not behind it.
  if (!selectionModel()->hasSelection()) setCurrentIndex({});
  const int before = currentIndex().row();
  QListView::keyPressEvent(event);
  const int now = currentIndex().row();
  if (now >= 0 && now != before) choose(now);
}

bool rows_view::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QListView::viewportEvent(event);
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTip(), this);
  return true;
}

int rows_view::widest_row() const {
  std::array<int, 256> widths{};
  for (std::size_t c = 0; c < widths.size(); ++c) {
    const char text[] = {static_cast<char>(c)};
    widths[c] = fontMetrics().horizontalAdvance(to_screen({text, 1}));
  }
  int widest = 0;
  for (int row = 0; row < row_count(); ++row) {
    int width = indent(row);
    for (const char c : row_text(row)) width += widths[static_cast<unsigned char>(c)];
    widest = std::max(widest, width);
  }
  return widest + 2 * text_margin;
}

void rows_view::rows_model::reload() {
  beginResetModel();
  count_ = view_.row_count();
  endResetModel();
}

int rows_view::rows_model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

QVariant rows_view::rows_model::data(const QModelIndex& index, int role) const {
  // The control may have lost rows that the screen has not caught up with.
  if (role != Qt::DisplayRole || index.row() >= view_.row_count()) return {};
  return to_screen(view_.row_text(index.row()));
}

void rows_view::rows_painter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
  if (index.row() >= view_.row_count()) return;
  const bool selected = (option.state & QStyle::State_Selected) != 0;
  const auto group = view_.isEnabled() ? QPalette::Active : QPalette::Disabled;
  if (selected) painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
  const int indent = view_.indent(index.row());
  QRect inside = option.rect.adjusted(text_margin, 0, 0, 0);
  if (indent > 0) view_.paint_mark(*painter, inside, index.row());
  inside.adjust(indent, 0, 0, 0);
  const auto role = selected ? QPalette::HighlightedText : QPalette::Text;
  painter->setPen(option.palette.color(group, role));
  painter->setFont(option.font);
  painter->drawText(inside, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                    index.data().toString());
}

QSize rows_view::rows_painter::sizeHint(const QStyleOptionViewItem& /*option*/,
                                        const QModelIndex& /*index*/) const {
  return {view_.width_, view_.row_height()};
}

}  // namespace desktop
