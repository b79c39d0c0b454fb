#include "desktop/input_filter.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QMouseEvent>

#include "desktop/control_view.h"
#include "desktop/form_window.h"
#include "forms_layer/user.h"

namespace desktop {

namespace {

bool is_input(const QEvent& event) {
  switch (event.type()) {
    case QEvent::Enter:  // a button must not miss the pointer, nor stay highlighted
    case QEvent::HoverLeave:
      return false;
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ToolTip:
    case QEvent::DragEnter:
    case QEvent::Drop:
      return true;
    default:
      return event.isInputEvent();
  }
}

// The receiver, or for a shortcut the widget that it belongs to.
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

// Another window, a menu or the popup of a drive list takes the focus only temporarily.
bool is_temporary(Qt::FocusReason reason) {
  return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason ||
         reason == Qt::MenuBarFocusReason;
}

// The canvas in a frame takes the focus for the frame.
void report_focus(QObject* receiver, const QFocusEvent& event) {
  if (is_temporary(event.reason())) return;
  for (QObject* at = receiver; at != nullptr; at = at->parent()) {
    if (const auto* view = dynamic_cast<control_view*>(at)) {
      forms_layer::user::focus(&view->control);
      return;
    }
  }
}

void send_as_press(QObject* receiver, const QMouseEvent& event) {
  QMouseEvent press(QEvent::MouseButtonPress, event.position(), event.scenePosition(),
                    event.globalPosition(), event.button(), event.buttons(), event.modifiers());
  QCoreApplication::sendEvent(receiver, &press);
}

}  // namespace

bool input_filter::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::FocusIn) report_focus(receiver, *static_cast<QFocusEvent*>(event));
  const bool is_press = event->type() == QEvent::MouseButtonPress;
  if (is_press || event->type() == QEvent::KeyPress) key_was_latest_ = !is_press;
  if (is_input(*event) && is_barred(receiver)) {
    if (is_press) on_barred_press();
    return true;
  }
  if (!receiver->isWidgetType()) return false;
  if (is_press) pressed_ = receiver;
  if (event->type() != QEvent::MouseButtonDblClick || receiver == pressed_) return false;
  send_as_press(receiver, *static_cast<QMouseEvent*>(event));
  return true;
}

}  // namespace desktop
