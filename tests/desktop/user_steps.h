#pragma once

#include <QTest>
#include <QtWidgets>
#include <functional>
#include <string>
#include <utility>

// What the user does in a window, as text. Steps are separated by "; ":
//   'abc               types
//   Ctrl+F             presses a key in the window
//   field Return       presses a key on a control; "hold Return" is a key that the keyboard repeats
//   field focus        gives it the focus
//   field press        clicks on its middle; also Ctrl+press, right, and wheel or wheel-back
//   field again        the second press of a double click; also right-again
//   list#3 press       clicks on a row
//   pictures@18@58 press
inline void act_once(QWidget& window, QString step) {
  const auto takes = [&step](const QString& prefix) {
    const bool has = step.startsWith(prefix) && step.size() > prefix.size();
    if (has) step.remove(0, prefix.size());
    return has;
  };
  if (takes("'")) {
    for (const QChar c : step) QTest::keyClick(window.windowHandle(), c.toLatin1());
    return;
  }
  QWidget* on = nullptr;
  QPoint at;
  if (step.contains(' ')) {
    const QStringList target = step.section(' ', 0, 0).split(QRegularExpression("[#@]"));
    step = step.section(' ', 1);
    on = window.findChild<QWidget*>(target[0]);
    at = target.size() == 3 ? QPoint(target[1].toInt(), target[2].toInt()) : on->rect().center();
    if (target.size() == 2) {
      const auto* list = static_cast<QAbstractItemView*>(on);
      at = list->visualRect(list->model()->index(target[1].toInt(), 0)).center();
      on = list->viewport();
    }
  }
  const bool is_repeated = takes("hold ");
  Qt::KeyboardModifiers held;
  if (takes("Ctrl+")) held |= Qt::ControlModifier;
  if (takes("Shift+")) held |= Qt::ShiftModifier;
  if (step == "focus") {
    on->setFocus();
  } else if (step == "press") {
    QTest::mouseClick(on, Qt::LeftButton, held, at);
  } else if (step == "right") {
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, held, on->mapTo(&window, at));
  } else if (step.endsWith("again")) {
    QTest::mouseDClick(on, step == "again" ? Qt::LeftButton : Qt::RightButton, held, at);
  } else if (step.startsWith("wheel")) {
    QWidget* under = on->childAt(at) == nullptr ? on : on->childAt(at);
    QWheelEvent turned(under->mapFrom(on, at), on->mapToGlobal(at), {},
                       {0, step == "wheel" ? 120 : -120}, Qt::NoButton, held, Qt::NoScrollPhase,
                       false);
    QSpontaneKeyEvent::setSpontaneous(&turned);
    qApp->notify(under, &turned);
  } else {
    const Qt::Key key = QKeySequence(step)[0].key();
    QKeyEvent repeated(QEvent::KeyPress, key, held, QString(), true);
    if (is_repeated) {
      QCoreApplication::sendEvent(on, &repeated);
    } else if (on == nullptr) {
      QTest::keyClick(window.windowHandle(), key, held);
    } else {
      QTest::keyClick(on, key, held);
    }
  }
}

inline void act(QWidget& window, const QString& steps) {
  for (const QString& step : steps.split("; ")) {
    act_once(window, step);
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  }
}

// Of a menu: "-" is a line, "!" a disabled item, "*" a checked one.
inline std::string text_of(const QMenu& menu) {
  std::string text;
  for (const QAction* action : menu.actions()) {
    text += action->isSeparator() ? "-" : action->text().toStdString();
    if (!action->isEnabled()) text += "!";
    if (action->isChecked()) text += "*";
    if (action->menu() != nullptr) text += "{" + text_of(*action->menu()) + "}";
    text += "|";
  }
  return text;
}

// Logs the menus, boxes and dialogs that open, and answers each with keys, by default Escape.
struct answers : QTimer {
  answers() {
    callOnTimeout([this] {
      QWidget* opened = QApplication::activePopupWidget();
      if (opened == nullptr) opened = QApplication::activeModalWidget();
      if (opened != nullptr && opened->isVisible()) answer(*opened);
    });
    start(1);
  }
  void answer(QWidget& opened) {
    stop();
    const auto* menu = qobject_cast<QMenu*>(&opened);
    log += menu == nullptr ? opened.windowTitle().toStdString() : text_of(*menu);
    if (const auto* name = opened.findChild<QLineEdit*>()) log += ": " + name->text().toStdString();
    on_open();
    for (const QString& key : std::exchange(keys, "Esc").split(' ')) {
      QWidget* popup = QApplication::activePopupWidget();
      QTest::keyClick(popup == nullptr ? &opened : popup, QKeySequence(key)[0].key());
    }
    start(1);
  }
  std::string take() { return std::exchange(log, ""); }

  std::string log;
  QString keys = "Esc";
  std::function<void()> on_open = [] {};
};
