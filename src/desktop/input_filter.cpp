#include "desktop/input_filter.h"

#include <QFocusEvent>

#include "desktop/control_view.h"
#include "desktop/form_window.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

bool is_input(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::ToolTip:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

// The receiver, or the widget it belongs to, as it goes for a shortcut.
QWidget* widget_of(QObject* receiver) {
  while (receiver != nullptr && !receiver->isWidgetType()) receiver = receiver->parent();
  return static_cast<QWidget*>(receiver);
}

bool is_barred(QObject* receiver) {
  const QWidget* widget = widget_of(receiver);
  if (widget == nullptr) return false;
  const auto* window = dynamic_cast<form_window*>(widget->window());
  return window != nullptr && !window->form.Enabled();
}

// Another window, a menu or the list of a drive list takes the focus for a while only.
bool is_for_a_while(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
         reason == Qt::MenuBarFocusReason;
}

void tell_focus(QObject* receiver, const QFocusEvent& event) {
  if (is_for_a_while(event.reason())) return;
  if (const auto* view = dynamic_cast<control_view*>(receiver)) {
    forms_layer::user::focus(&view->control);
  }
}

}  // namespace

bool input_filter::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::FocusIn) tell_focus(receiver, *static_cast<QFocusEvent*>(event));
  return is_input(event->type()) && is_barred(receiver);
}

}  // namespace desktop
