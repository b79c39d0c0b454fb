#pragma once

#include <QTest>
#include <QtWidgets>
#include <functional>
#include <map>
#include <string>
#include <utility>

// What the user does in a window, as text. Steps are separated by "; ":
//   'abc               types
//   Ctrl+F             presses a key in the window
//   field Return       presses a key on a control; "hold Return" is a key that the keyboard repeats
//   field focus        gives it the focus
//   field press        clicks on its middle; also Ctrl+press, right, and wheel, wheel-part,
//                      wheel-back
//   field again        the second press of a double click; also right-again
//   list#3 press       clicks on a row
//   pictures@18@58 press
inline void act_once(QWidget& window, const QString& step) {
  if (step.startsWith('\'')) {
    for (const QChar c : step.mid(1)) QTest::keyClick(window.windowHandle(), c.toLatin1());
    return;
  }
  static const QRegularExpression form(
      R"(((?<on>\w+)(#(?<row>\d+)|@(?<x>\d+)@(?<y>\d+))? )?(?<hold>hold )?)"
      R"((?<ctrl>Ctrl\+)?(?<shift>Shift\+)?(?<what>.+))");
  const QRegularExpressionMatch match = form.match(step);
  const auto has = [&match](const QString& name) { return !match.captured(name).isEmpty(); };
  const auto number = [&match](const QString& name) { return match.captured(name).toInt(); };
  const QString what = match.captured("what");
  QWidget* on = has("on") ? window.findChild<QWidget*>(match.captured("on")) : nullptr;
  QPoint at = on == nullptr ? QPoint() : on->rect().center();
  if (has("x")) at = QPoint(number("x"), number("y"));
  if (has("row")) {
    const auto* list = static_cast<QAbstractItemView*>(on);
    at = list->visualRect(list->model()->index(number("row"), 0)).center();
    on = list->viewport();
  }
  Qt::KeyboardModifiers held;
  if (has("ctrl")) held |= Qt::ControlModifier;
  if (has("shift")) held |= Qt::ShiftModifier;
  if (what == "focus") return on->setFocus();
  if (what == "press") return QTest::mouseClick(on, Qt::LeftButton, held, at);
  if (what == "right") {
    return QTest::mouseClick(window.windowHandle(), Qt::RightButton, held, on->mapTo(&window, at));
  }
  if (what.endsWith("again")) {
    return QTest::mouseDClick(on, what == "again" ? Qt::LeftButton : Qt::RightButton, held, at);
  }
  static const std::map<QString, int> turns = {
      {"wheel", 120}, {"wheel-part", 30}, {"wheel-back", -120}};
  if (turns.contains(what)) {
    QWidget* under = on->childAt(at) == nullptr ? on : on->childAt(at);
    QWheelEvent turned(under->mapFrom(on, at), on->mapToGlobal(at), {}, {0, turns.at(what)},
                       Qt::NoButton, held, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&turned);
    qApp->notify(under, &turned);
    return;
  }
  const Qt::Key key = QKeySequence(what)[0].key();
  QKeyEvent repeated(QEvent::KeyPress, key, held, QString(), true);
  if (has("hold")) return static_cast<void>(QCoreApplication::sendEvent(on, &repeated));
  on == nullptr ? QTest::keyClick(window.windowHandle(), key, held)
                : QTest::keyClick(on, key, held);
}

inline void act(QWidget& window, const QString& steps) {
  for (const QString& step : steps.split("; ")) {
    act_once(window, step);
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  }
}

// Of a menu or a bar of menus: "-" is a line, "!" a disabled item, "*" a checked one.
inline std::string text_of(const QWidget& menu) {
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
    on_open(opened);
    for (const QString& key : std::exchange(keys, "Esc").split(' ')) {
      if (!opened.isVisible()) break;
      QWidget* popup = QApplication::activePopupWidget();
      QTest::keyClick(popup == nullptr ? &opened : popup, QKeySequence(key)[0].key());
    }
    start(1);
  }
  std::string take() { return std::exchange(log, ""); }

  std::string log;
  QString keys = "Esc";
  std::function<void(QWidget& opened)> on_open = [](const auto&) {};
};
