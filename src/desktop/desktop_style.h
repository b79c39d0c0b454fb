#pragma once

#include <QProxyStyle>

namespace desktop {

// Fusion on every desktop, with what the design asks for beyond it: captions of buttons and labels
// that wrap, a frame round a list that has the focus, and menus whose letters are underlined only
// where a key picks them.
class desktop_style : public QProxyStyle {
 public:
  desktop_style();

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* answer) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& colours,
                    bool enabled, const QString& text, QPalette::ColorRole role) const override;
};

}  // namespace desktop
