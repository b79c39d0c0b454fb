// Where windows open, what they show first, and how they come back.
#include <QWindow>

#include "desktop_fixture.h"

struct first_events : QObject {
  first_events() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* receiver, QEvent* event) override {
    const bool is_expose = event->type() == QEvent::Expose;
    if (is_expose || event->type() == QEvent::Paint) {
      log += is_expose ? "expose " : receiver->objectName() + " ";
    }
    return false;
  }
  QString log;
};

TEST_F(Desktop, AWindowIsPaintedBeforeItIsMapped) {
  first_events events;
  QWidget& window = show(form);
  EXPECT_LT(events.log.indexOf("label "), events.log.indexOf("expose"));
  EXPECT_GT(events.log.lastIndexOf("label "), events.log.indexOf("expose"));
  EXPECT_TRUE(window.isVisible());
}

TEST_F(Desktop, APressOnADisabledWindowBringsUpItsDialog) {
  using ostrane::Form2;
  ostrane::reset_forms();
  QWidget& window = show_active();
  write([&] { form.Enabled = false, Form2.Visible = true; });
  QWidget& dialog = *screen.window_of(Form2);
  dialog.showMinimized();
  window.activateWindow();
  handle_events();
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, {100, 100});
  EXPECT_FALSE(dialog.isMinimized());
  EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
}
