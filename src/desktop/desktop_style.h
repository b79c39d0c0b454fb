#pragma once

#include <QProxyStyle>

namespace desktop {

// The Fusion style with additions of the design: captions of buttons and labels wrap, a focused
// list has a frame, and menu letters are underlined only while a key picks them.
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
