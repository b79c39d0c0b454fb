#pragma once

#include <QProxyStyle>

namespace desktop {

// The same look on every desktop. Shortcuts of the menus work without marks under their letters,
// which the captions as designed have not got; fields and lists have plain frames, which fill
// their places, are painted fast, and tell where the focus is.
class desktop_style : public QProxyStyle {
 public:
  desktop_style();

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace desktop
