#include "desktop/multiline_text_view.h"

#include <QSignalBlocker>

#include "desktop/designed_look.h"
#include "desktop/screen_text.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

constexpr int pause_in_milliseconds = 200;

// Qt lays a line out as a whole, in a time that makes lines of megabytes endless.
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

}  // namespace

multiline_text_view::multiline_text_view(forms_layer::text_box& shown, QWidget* parent)
    : QPlainTextEdit(parent), control_view(shown), box_(shown) {
  setFont(font_for(shown.designed.font));
  setReadOnly(shown.designed.locked);
  setLineWrapMode(NoWrap);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setTabChangesFocus(true);
  setUndoRedoEnabled(!shown.designed.locked);
  pause_.setSingleShot(true);
  pause_.setInterval(pause_in_milliseconds);
  connect(&pause_, &QTimer::timeout, this, [this] { take_edit(); });
  connect(this, &QPlainTextEdit::textChanged, this, [this] { pause_.start(); });
}

void multiline_text_view::take_edit() {
  pause_.stop();
  QString lines = toPlainText();
  forms_layer::user::type(box_,
                          from_screen(lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"))));
}

void multiline_text_view::show_content() {
  const QString now = with_short_lines(normalize_newlines(to_screen(box_.Text())));
  if (now == toPlainText()) return;
  const QSignalBlocker quiet(this);
  setPlainText(now);
}

void multiline_text_view::show_colours() {
  setPalette(with_colours({}, QPalette::Base, QPalette::Text, box_.BackColor()));
}

void multiline_text_view::focusOutEvent(QFocusEvent* event) {
  if (pause_.isActive()) take_edit();
  QPlainTextEdit::focusOutEvent(event);
}

}  // namespace desktop
