#include "desktop/desktop_style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace desktop {

namespace {

void draw_field(QPainter& painter, const QStyleOption& option) {
  const bool focused = (option.state & QStyle::State_HasFocus) != 0;
  painter.fillRect(option.rect, focused ? option.palette.color(QPalette::Highlight)
                                        : option.palette.color(QPalette::Window).darker(140));
  painter.fillRect(option.rect.adjusted(1, 1, -1, -1), option.palette.color(QPalette::Base));
}

}  // namespace

desktop_style::desktop_style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int desktop_style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* answer) const {
  if (hint == SH_UnderlineShortcut || hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

void desktop_style::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  if (element == PE_PanelLineEdit) {
    draw_field(*painter, *option);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

}  // namespace desktop
