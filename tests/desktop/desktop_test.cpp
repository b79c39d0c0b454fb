#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPaintEvent>
#include <QTest>
#include <map>
#include <string>

#include "desktop/application_setup.h"
#include "desktop/control_view.h"
#include "desktop/designed_look.h"
#include "desktop/qt_screen.h"
#include "forms/forms.h"
#include "forms_layer/application.h"
#include "forms_layer/events.h"

namespace {

QWidget* widget_of(const QWidget& window, const forms_layer::control& shown) {
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const auto* view = dynamic_cast<desktop::control_view*>(widget);
    if (view != nullptr && &view->control == &shown) return widget;
  }
  return nullptr;
}

void click(QWidget* widget, const QPoint& at = {}) {
  QTest::mouseClick(widget, Qt::LeftButton, {}, at);
}

void double_press(QWidget* widget, const QPoint& at) {
  QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
}

void tab(int times) {
  for (int i = 0; i < times; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
}

// Adds up what a widget is asked to paint.
class paint_watch : public QObject {
 public:
  explicit paint_watch(QWidget* watched) { watched->installEventFilter(this); }
  bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion painted;
};

class Desktop : public ::testing::Test {
 protected:
  Desktop() {
    forms_layer::begin_process();
    forms_layer::attach_screen(&screen);
    form.Text6.Visible = false;
    for (int i = 1; i <= 5; ++i) form.s16_image.Load(i);
    picture().Width = 75;
    picture().BackColor = forms_layer::rgb(9, 8, 7);
  }
  ~Desktop() override { forms_layer::attach_screen(nullptr); }

  QWidget& show(forms_layer::form& shown) {
    forms_layer::run_event([&shown] { shown.Visible = true; });
    QCoreApplication::processEvents();
    QWidget& window = *screen.window_of(shown);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    return window;
  }

  QWidget& show_active() {
    QWidget& window = show(form);
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    return window;
  }

  forms_layer::picture_box& picture() { return form.s16_image(1); }

  desktop::qt_screen screen;
  ostrane::form1 form;  // with nothing wired to it
};

// Each pixel is painted by itself, as when a part alone has changed.
TEST_F(Desktop, APictureIsOnTheScreenPixelByPixel) {
  picture().PSet(0, 0, forms_layer::rgb(255, 0, 0));
  picture().PSet(2, 3, forms_layer::rgb(1, 2, 250));
  picture().Visible = true;
  QWidget* frame = widget_of(show(form), form.Frame1);
  QImage pixel(1, 1, QImage::Format_RGB32);
  const auto painted = [&](int x, int y) {
    frame->render(&pixel, {}, QRect(x, y, 1, 1));
    return pixel.pixel(0, 0);
  };
  std::map<QRgb, char> letters = {{qRgb(255, 0, 0), 'R'},
                                  {qRgb(1, 2, 250), 'B'},
                                  {qRgb(9, 8, 7), '-'},
                                  {painted(16, 56), '#'},
                                  {painted(15, 55), ' '}};
  std::string seen;
  for (int y = 55; y < 63; ++y) {
    for (int x = 15; x < 22; ++x) seen += letters[painted(x, y)];  // NUL for any other colour
    seen += '|';
  }
  EXPECT_EQ(seen,
            "       | ##### | #R--# | #---# |"
            " #---# | #--B# | ##### |       |");
}

TEST_F(Desktop, ARefreshPaintsWhatChangedAndNoMore) {
  paint_watch watch(widget_of(show(form), form.Frame1));
  const struct {
    const char* what;
    std::function<void()> write;
    QRegion painted;
  } cases[] = {
      {"shown", [&] { picture().Visible = true; }, QRect(16, 56, 5, 6)},
      {"one pixel", [&] { picture().PSet(1, 2, 5); }, QRect(18, 59, 1, 1)},
      {"cleared", [&] { picture().Cls(); }, QRect(17, 57, 3, 4)},
      {"moved", [&] { picture().Move(1500, 840); }, QRegion(16, 56, 5, 6) + QRect(100, 56, 5, 6)},
      {"moved to and fro", [&] { picture().Move(0, 0), picture().Move(1500, 840); }, QRegion()},
      {"hidden", [&] { picture().Visible = false; }, QRect(100, 56, 5, 6)},
      {"drawn on while hidden", [&] { picture().PSet(1, 1, 5); }, QRegion()},
  };
  for (const auto& c : cases) {
    watch.painted = {};
    forms_layer::run_event([&] {
      c.write();
      form.Refresh();
      EXPECT_EQ(watch.painted, c.painted) << c.what;
    });
  }
}

// What the user does meanwhile runs behind the handler.
TEST_F(Desktop, AWindowShownInAHandlerIsPaintedBeforeTheHandlerEnds) {
  std::string log;
  QWidget& window = show(form);
  form.Unload = [&] { log += "close "; };
  forms_layer::run_event([&] {
    QMetaObject::invokeMethod(
        &window, [&] { window.close(); }, Qt::QueuedConnection);
    ostrane::form2 second;
    second.Visible = true;
    second.Refresh();
    paint_watch watch(widget_of(*screen.window_of(second), second.Command1));
    second.Command1.Caption = "Other";
    second.Refresh();
    EXPECT_FALSE(watch.painted.isEmpty());
    second.Visible = false;
    form.Refresh();
    log += "end ";
  });
  QCoreApplication::processEvents();
  EXPECT_EQ(log, "end close ");
}

TEST_F(Desktop, WhatTheUserDoesReachesTheTool) {
  std::string log;
  for (const char* row : {"one", "two", "three"}) form.List1.AddItem(row);
  form.List1.Click = [&] { log += "click" + std::to_string(form.List1.ListIndex()) + " "; };
  form.List1.DblClick = [&] { log += "double "; };
  form.Command3.Click = [&] { log += "go "; };
  form.Text4.LostFocus = [&] { log += "lost:" + form.Text4.Text() + " "; };
  form.s16_image.DblClick = [&](int i) { log += "picture" + std::to_string(i) + " "; };
  form.Unload = [&] { log += "close "; };
  picture().Visible = true;
  QWidget& window = show_active();
  auto* list = static_cast<QAbstractItemView*>(widget_of(window, form.List1));
  QWidget* button = widget_of(window, form.Command3);
  QWidget* field = widget_of(window, form.Text4);
  QWidget* frame = widget_of(window, form.Frame1);
  const auto row = [&](int r) { return list->visualRect(list->model()->index(r, 0)).center(); };
  const QPoint on_picture(18, 58);
  const QPoint beside(60, 190);
  const auto disabled = [&] {
    form.Enabled = false;
    click(list->viewport(), row(0));
    QTest::keyClick(list, Qt::Key_Up);
    click(button);
    QTest::keyClicks(field, "9");
    window.close();
  };
  const struct {
    const char* what;
    std::function<void()> act;
    std::string log;
  } cases[] = {
      {"press", [&] { click(list->viewport(), row(1)); }, "click1 "},
      {"press on the selected row", [&] { click(list->viewport(), row(1)); }, "click1 "},
      {"press beneath the rows", [&] { click(list->viewport(), beside); }, ""},
      {"double click", [&] { double_press(list->viewport(), row(1)); }, "double "},
      {"arrow", [&] { QTest::keyClick(list, Qt::Key_Down); }, "click2 "},
      {"arrow at the end", [&] { QTest::keyClick(list, Qt::Key_Down); }, ""},
      {"tab past field and frame to the button", [] { tab(3); }, ""},
      {"Enter", [&] { QTest::keyClick(button, Qt::Key_Return); }, "go "},
      {"Space", [&] { QTest::keyClick(button, Qt::Key_Space); }, "go "},
      {"tab to the field", [] { tab(3); }, ""},
      {"typing beyond the limit", [&] { QTest::keyClicks(field, "123"); }, ""},
      {"click elsewhere", [&] { click(button); }, "lost:12 go "},
      {"double click on a picture", [&] { double_press(frame, on_picture); }, "picture1 "},
      {"double click beside it", [&] { double_press(frame, beside); }, ""},
      {"close", [&] { window.close(); }, "close "},
      {"disabled", disabled, ""},
  };
  for (const auto& c : cases) {
    log.clear();
    c.act();
    EXPECT_EQ(log, c.log) << c.what;
  }
  EXPECT_TRUE(button->isEnabled()) << "a disabled form looks as ever";
  EXPECT_EQ(form.Text4.Text(), "12");
  EXPECT_TRUE(window.isVisible());
}

TEST_F(Desktop, KeysReachEveryPictureOnShow) {
  int opened = 0;
  form.s16_image.DblClick = [&](int i) { opened = i; };
  const QPoint places[] = {{0, 0}, {300, 900}, {600, 900}, {900, 900}, {300, 1200}, {840, 1200}};
  for (int i = 1; i <= 5; ++i) {
    form.s16_image(i).Move(places[i].x(), places[i].y());
    form.s16_image(i).Visible = i != 2;
  }
  QWidget& window = show_active();
  QWidget* field = widget_of(window, form.Text1);
  QWidget* frame = widget_of(window, form.Frame1);
  const auto has_cursor = [&] {  // round the first picture
    return frame->grab().toImage().pixelColor(19, 59) == frame->palette().highlight().color();
  };
  field->setFocus();
  tab(1);
  EXPECT_TRUE(has_cursor());
  const std::pair<Qt::Key, int> steps[] = {
      {Qt::Key_Right, 3}, {Qt::Key_Right, 4}, {Qt::Key_Down, 4}, {Qt::Key_End, 5},
      {Qt::Key_Up, 3},    {Qt::Key_Up, 3},    {Qt::Key_Left, 1}, {Qt::Key_Left, 1},
      {Qt::Key_Down, 4},  {Qt::Key_Home, 1}};
  for (const auto& [key, reached] : steps) {
    opened = 0;
    QTest::keyClick(frame, key);
    QTest::keyClick(frame, reached % 2 == 0 ? Qt::Key_Space : Qt::Key_Return);
    EXPECT_EQ(opened, reached) << "by key " << key;
  }
  for (int i = 1; i <= 5; ++i) form.s16_image(i).Visible = false;
  QCoreApplication::processEvents();
  EXPECT_FALSE(has_cursor());
  tab(1);
  QTest::keyClick(window.focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(window.focusWidget(), field) << "there is no picture to stop at";
}

TEST_F(Desktop, TextIsReadableOnEveryBackgroundInLightAndDarkThemes) {
  const QPalette light = QApplication::palette();
  for (const QPalette& theme : {light, QPalette(QColor(35, 35, 38))}) {
    QApplication::setPalette(theme);
    for (const forms_layer::colour back :
         {ostrane::pale_green, ostrane::pale_cyan, forms_layer::system_menu,
          forms_layer::system_window, forms_layer::system_button_face, forms_layer::system_light,
          forms_layer::rgb(0, 0, 60)}) {
      const QPalette used = desktop::with_colours({}, QPalette::Base, QPalette::Text, back);
      for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const int text = qGray(used.color(group, QPalette::Text).rgb());
        const int base = qGray(used.color(group, QPalette::Base).rgb());
        EXPECT_GE(std::abs(text - base), 100) << std::hex << back;
      }
    }
    QWidget& window = show(form);
    const auto frame_of = [&window](const forms_layer::control& shown) {
      return widget_of(window, shown)->grab().toImage().pixel(0, 0);
    };
    const int ground = qGray(theme.color(QPalette::Window).rgb());
    EXPECT_GE(std::abs(qGray(frame_of(form.Text1)) - ground), 40);
    EXPECT_GE(std::abs(qGray(frame_of(form.Text6)) - ground), 40);
    EXPECT_EQ(frame_of(form.List1), QApplication::palette().color(QPalette::Highlight).rgb())
        << "has the focus";
  }
  QApplication::setPalette(light);
}

TEST_F(Desktop, MenusAreInTheToolsFontOnADesktopWithAnotherOne) {
  QFont large;
  large.setPixelSize(40);
  QApplication::setFont(large, "QMenu");
  const auto* bar = show(form).findChild<QMenuBar*>();
  for (const QAction* shown : bar->actions()) {
    EXPECT_EQ(shown->menu()->font().pixelSize(), desktop::font_for({}).pixelSize());
  }
  QApplication::setFont(QFont());
}

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  desktop::set_up_application();
  return RUN_ALL_TESTS();
}
