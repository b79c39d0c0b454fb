#include "desktop/screen_text.h"

#include <QTextDocument>

#include "files/code_page.h"

namespace desktop {

QString to_screen(std::string_view text) {
  const std::u8string utf8 = files::to_utf8(text);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string from_screen(const QString& text) {
  return files::from_utf8_lossy(files::as_utf8(text.toStdString()));
}

QString normalize_newlines(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return text;
}

QString escape_ampersands(QString caption) {
  return caption.replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString as_tool_tip(const std::string& text) {
  // Qt breaks only tool tips with markup into lines.
  constexpr qsizetype longest_plain_tool_tip = 90;
  QString plain = to_screen(text);
  if (plain.size() <= longest_plain_tool_tip && !Qt::mightBeRichText(plain)) return plain;
  return QStringLiteral("<p style=\"white-space:pre-wrap\">") + plain.toHtmlEscaped() +
         QStringLiteral("</p>");
}

}  // namespace desktop
