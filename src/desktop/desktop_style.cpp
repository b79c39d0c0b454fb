#include "desktop/desktop_style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include "desktop/designed_look.h"

namespace desktop {

namespace {

// Of a disabled field too, which the tool shows as any other.
QColor frame_colour(const QStyleOption& option) {
  const auto colour = [&option](QPalette::ColorRole role) {
    return option.palette.color(QPalette::Active, role);
  };
  const bool focused = (option.state & QStyle::State_HasFocus) != 0;
  return focused ? colour(QPalette::Highlight)
                 : line_colour(colour(QPalette::Window), colour(QPalette::WindowText));
}

void draw_field(QPainter& painter, const QStyleOption& option) {
  painter.fillRect(option.rect, frame_colour(option));
  painter.fillRect(option.rect.adjusted(1, 1, -1, -1), option.palette.color(QPalette::Base));
}

// Of a list or a page; what is inside it paints itself.
void draw_frame(QPainter& painter, const QStyleOption& option) {
  painter.setPen(frame_colour(option));
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
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
  } else if (element == PE_Frame) {
    draw_frame(*painter, *option);
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

}  // namespace desktop
