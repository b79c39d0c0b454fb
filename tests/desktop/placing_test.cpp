// Where windows open, what they show first, and how they come back.
#include "desktop_fixture.h"

struct first_events : QObject {
  first_events() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* receiver, QEvent* event) override {
    const bool is_expose = event->type() == QEvent::Expose;
    if (is_expose || event->type() == QEvent::Paint)
      log += is_expose ? "expose " : receiver->objectName() + " ";
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

TEST_F(Desktop, APressOnADisabledWindowAndItsFocusBringUpItsDialog) {
  using ostrane::Form2;
  ostrane::reset_forms();
  QWidget& window = show_active();
  write([&] { form.Enabled = false, Form2.Visible = true; });
  QWidget& dialog = *screen.window_of(Form2);
  dialog.showMinimized();
  QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, {100, 100});
  EXPECT_FALSE(dialog.isMinimized());
  expect_active(dialog);
  window.activateWindow();
  handle_events();
  expect_active(dialog);
}

// Over the window that was shown first or on the screen, and always inside it.
TEST_F(Desktop, WindowsOpenInTheMiddleAndWhereTheyWereClosed) {
  using namespace ostrane;
  reset_forms();
  const QRect free = QGuiApplication::primaryScreen()->availableGeometry();
  QWidget& main = show(Form1);
  EXPECT_LE((main.geometry().center() - free.center()).manhattanLength(), 1);
  main.move(30, 20);
  QWidget& form2 = show(Form2);
  QWidget& form6 = show(Form6);
  EXPECT_LE((form2.geometry().center() - main.geometry().center()).manhattanLength(), 1);
  EXPECT_LE((form6.geometry().center() - free.center()).manhattanLength(), 1);
  EXPECT_EQ(form2.windowHandle()->transientParent(), main.windowHandle());
  EXPECT_EQ(form6.windowHandle()->transientParent(), form2.windowHandle());
  expect_active(form6);
  widget_of(form2, Form2.Command2)->setFocus();
  form2.move(55, 44);
  activate(form2);
  for (const bool visible : {false, true}) {
    write([&] { Form2.Visible = visible; });
    expect_active(visible ? form2 : form6);
    EXPECT_EQ(form6.windowHandle()->transientParent(), nullptr);
  }
  EXPECT_EQ(form2.pos(), QPoint(55, 44));
  EXPECT_TRUE(widget_of(form2, Form2.Command2)->hasFocus());
  EXPECT_EQ(form2.windowHandle()->transientParent(), form6.windowHandle());
  write([] { Form6.SetFocus(); });
  expect_active(form6);
  form2.move(free.bottomRight() + QPoint(500, 500));
  main.move(free.bottomRight() - QPoint(100, 100));
  write([&] { Form2.Visible = false; });
  EXPECT_EQ(show(Form2).frameGeometry().bottomRight(), free.bottomRight()) << "its screen is gone";
  main.move(free.topLeft() - QPoint(500, 500));
  EXPECT_EQ(show(Form4).pos(), free.topLeft());
  // Whether it can be closed, and whether its size is fixed.
  const auto kind_of = [](const QWidget& window) {
    return std::tuple(window.windowType(), (window.windowFlags() & Qt::WindowCloseButtonHint) != 0,
                      window.minimumSize() == window.maximumSize());
  };
  EXPECT_EQ(kind_of(main), std::tuple(Qt::Window, true, false));
  EXPECT_EQ(kind_of(form2), std::tuple(Qt::Dialog, false, true));
  EXPECT_EQ(form2.size(), QSize(4680 / 15, 4185 / 15));
  EXPECT_EQ(widget_of(main, Form1.List1)->parentWidget()->size(), QSize(9330 / 15, 6690 / 15));
}
