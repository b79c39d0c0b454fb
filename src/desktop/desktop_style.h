#pragma once

#include <QProxyStyle>
#include <QStyleFactory>

namespace desktop {

// The same look on every desktop. Shortcuts of the menus work without marks under their letters,
// which the captions as designed have not got.
class desktop_style : public QProxyStyle {
 public:
  desktop_style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override {
    if (hint == SH_UnderlineShortcut || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, answer);
  }
};

}  // namespace desktop
