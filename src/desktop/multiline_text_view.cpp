#include "desktop/multiline_text_view.h"

#include <QAbstractTextDocumentLayout>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalBlocker>
#include <QTextBlock>
#include <memory>

#include "desktop/screen_text.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

constexpr int pause_in_milliseconds = 200;

// Qt's layout time grows faster than the length of a line; a line of megabytes would hang.
constexpr qsizetype max_line_length = 4096;

QString with_short_lines(const QString& text) {
  QString lines;
  lines.reserve(text.size() + text.size() / max_line_length);
  qsizetype length = 0;
  for (const QChar c : text) {
    if (length == max_line_length && c != QLatin1Char('\n')) {
      lines += QLatin1Char('\n');
      length = 0;
    }
    lines += c;
    length = c == QLatin1Char('\n') ? 0 : length + 1;
  }
  return lines;
}

// Qt needs some 400 bytes per block. In texts of many lines a block holds several lines; in others
// one, which is better for editing.
constexpr qsizetype max_single_lines = 20000;
constexpr qsizetype lines_per_block = 64;

QString with_joined_lines(QString text) {
  if (text.count(QLatin1Char('\n')) <= max_single_lines) return text;
  qsizetype line = 0;
  for (QChar& c : text) {
    if (c == QLatin1Char('\n') && ++line % lines_per_block != 0) c = QChar::LineSeparator;
  }
  return text;
}

}  // namespace

multiline_text_view::multiline_text_view(forms_layer::text_box& shown, QWidget* parent)
    : view_of(shown, parent) {
  setBackgroundRole(QPalette::Base);
  setReadOnly(shown.designed.locked);
  setLineWrapMode(NoWrap);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setTabChangesFocus(true);
  setUndoRedoEnabled(!shown.designed.locked);
  pause_.setSingleShot(true);
  pause_.setInterval(pause_in_milliseconds);
  connect(&pause_, &QTimer::timeout, this, [this] { report_edit(); });
  connect(this, &QPlainTextEdit::textChanged, this, [this] { pause_.start(); });
}

void multiline_text_view::report_edit() {
  pause_.stop();
  reported_ = toPlainText();
  QString lines = reported_;
  forms_layer::user::type(shown_,
                          from_screen(lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"))));
}

void multiline_text_view::show_content() {
  const QString now = with_short_lines(normalize_newlines(to_screen(shown_.Text())));
  const bool types_on = pause_.isActive() && now == reported_;
  if (types_on || now == toPlainText()) return;
  const QSignalBlocker quiet(this);
  const QString shown = with_joined_lines(now);
  has_joined_lines_ = shown.contains(QChar::LineSeparator);
  setPlainText(shown);
  count_lines();
}

// The scroll bar counts lines, and Qt counts those of a block only when it paints it.
void multiline_text_view::count_lines() {
  if (!has_joined_lines_) return;
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    block.setLineCount(1 + static_cast<int>(block.text().count(QChar::LineSeparator)));
  }
  QAbstractTextDocumentLayout* layout = document()->documentLayout();
  emit layout->documentSizeChanged(layout->documentSize());
}

// A new width resets the numbers of lines.
void multiline_text_view::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  count_lines();
}

void multiline_text_view::contextMenuEvent(QContextMenuEvent* event) {
  const std::unique_ptr<QMenu> menu(createStandardContextMenu(event->pos()));
  menu->setFont(font_for({}));
  menu->addSeparator();
  QAction* fixed = menu->addAction(QStringLiteral("&Fixed-pitch font"));
  fixed->setCheckable(true);
  fixed->setChecked(has_fixed_pitch_);
  if (menu->exec(event->globalPos()) != fixed) return;
  has_fixed_pitch_ = fixed->isChecked();
  forms_layer::font_design chosen = shown_.designed.font;
  if (has_fixed_pitch_) chosen.name = "Courier New";
  setFont(font_for(chosen));
}

// With an empty clipboard Qt passes on a source without content, and then uses it.
bool multiline_text_view::canInsertFromMimeData(const QMimeData* source) const {
  return source != nullptr && source->hasText() && !source->hasUrls();
}

void multiline_text_view::insertFromMimeData(const QMimeData* source) {
  if (canInsertFromMimeData(source)) QPlainTextEdit::insertFromMimeData(source);
}

void multiline_text_view::focusOutEvent(QFocusEvent* event) {
  if (pause_.isActive()) report_edit();
  QPlainTextEdit::focusOutEvent(event);
}

}  // namespace desktop
