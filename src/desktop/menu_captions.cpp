#include "desktop/menu_captions.h"

#include "desktop/screen_text.h"

namespace desktop {

QString with_shortcut(const std::string& caption, QString& taken) {
  const QString text = to_screen(caption);
  for (qsizetype at = 0; at < text.size(); ++at) {
    const QChar letter = text[at].toUpper();
    if (!letter.isLetter() || taken.contains(letter)) continue;
    taken += letter;
    return escape_ampersands(text.left(at)) + QLatin1Char('&') + escape_ampersands(text.mid(at));
  }
  return escape_ampersands(text);
}

}  // namespace desktop
