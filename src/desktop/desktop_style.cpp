#include "desktop/desktop_style.h"

#include <qdrawutil.h>

#include <QApplication>
#include <QMenuBar>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTextOption>

#include "desktop/control_view.h"

namespace desktop {

namespace {

constexpr int side_margin = 3;

bool keys_pick_menus() {
  return (QGuiApplication::queryKeyboardModifiers() & Qt::AltModifier) != 0 ||
         QApplication::activePopupWidget() != nullptr ||
         qobject_cast<QMenuBar*>(QApplication::focusWidget()) != nullptr;
}

}  // namespace

desktop_style::desktop_style() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

int desktop_style::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* answer) const {
  if (hint == SH_UnderlineShortcut) return keys_pick_menus() ? 1 : 0;
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, answer);
}

// Fusion shows the focus of a field, but not that of a list.
void desktop_style::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element != PE_Frame || (option->state & State_HasFocus) == 0) return;
  qDrawPlainRect(painter, option->rect,
                 option->palette.color(QPalette::Active, QPalette::Highlight));
}

// Qt does not wrap captions of push buttons. In Qt's own dialogs they need not wrap.
void desktop_style::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  const bool wraps = dynamic_cast<const control_view*>(widget) != nullptr;
  if (element != CE_PushButtonLabel || button == nullptr || !wraps) {
    return QProxyStyle::drawControl(element, option, painter, widget);
  }
  const QRect inside = option->rect.adjusted(side_margin, 0, -side_margin, 0);
  drawItemText(painter, inside, Qt::AlignCenter | Qt::TextWordWrap, option->palette,
               (option->state & State_Enabled) != 0,
               QString(button->text).replace(QLatin1String("&&"), QLatin1String("&")),
               QPalette::ButtonText);
}

// Also wraps paths without blanks.
void desktop_style::drawItemText(QPainter* painter, const QRect& rect, int flags,
                                 const QPalette& colours, bool enabled, const QString& text,
                                 QPalette::ColorRole role) const {
  if ((flags & Qt::TextWordWrap) == 0) {
    return QProxyStyle::drawItemText(painter, rect, flags, colours, enabled, text, role);
  }
  constexpr int alignments = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask;
  QTextOption wrapped{Qt::Alignment(flags & alignments)};
  wrapped.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  painter->setPen(colours.color(enabled ? QPalette::Active : QPalette::Disabled, role));
  painter->drawText(QRectF(rect), text, wrapped);
}

}  // namespace desktop
