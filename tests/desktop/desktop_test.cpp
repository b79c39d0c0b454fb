#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPushButton>
#include <QTest>
#include <cmath>
#include <map>
#include <string>

#include "desktop/control_view.h"
#include "desktop/designed_look.h"
#include "desktop/desktop_style.h"
#include "desktop/qt_screen.h"
#include "desktop/screen_text.h"
#include "desktop/wrapped_text.h"
#include "forms/forms.h"
#include "platform/application.h"
#include "platform/events.h"

namespace {

// A form with a control of each kind that the user works with. Twips.
struct small_form : platform::form {
  small_form()
      : form({.name = "small", .client_width = 6000, .client_height = 4500, .control_box = true}) {}

  platform::list_box List{*this, {.name = "List", .at = {0, 0, 1500, 3000}, .tab_index = 0}};
  platform::text_box Field{
      *this, {.name = "Field", .at = {0, 3300, 1500, 285}, .tab_index = 2, .max_length = 3}};
  platform::button Button{
      *this, {.name = "Button", .at = {0, 3900, 1500, 300}, .tab_index = 1, .text = "Go"}};
  platform::frame Frame{*this, {.name = "Frame", .at = {1500, 0, 4500, 4500}, .tab_index = 3}};
  platform::picture_array pictures{
      Frame, {.name = "pictures", .at = {300, 300, 90, 90}, .visible = false}};
};

QWidget* widget_of(const QWidget& window, const platform::control& shown) {
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const auto* view = dynamic_cast<desktop::control_view*>(widget);
    if (view != nullptr && &view->control == &shown) return widget;
  }
  return nullptr;
}

// The second press of a double click alone.
void double_press(QWidget* widget, const QPoint& at) {
  QMouseEvent press(QEvent::MouseButtonDblClick, at, widget->mapToGlobal(at), Qt::LeftButton,
                    Qt::LeftButton, {});
  QCoreApplication::sendEvent(widget, &press);
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
  void SetUp() override {
    platform::begin_process();
    platform::attach_screen(&screen);
  }
  void TearDown() override { platform::attach_screen(nullptr); }

  QWidget& show(platform::form& shown) {
    platform::run_event([&shown] { shown.Visible = true; });
    QCoreApplication::processEvents();
    QWidget& window = *screen.window_of(shown);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    return window;
  }

  desktop::qt_screen screen;
  small_form form;
};

TEST_F(Desktop, APictureIsOnTheScreenPixelByPixel) {
  form.pictures.Load(1);
  platform::picture_box& picture = form.pictures(1);
  picture.Width = 75;
  picture.BackColor = platform::rgb(9, 8, 7);
  picture.PSet(0, 0, platform::rgb(255, 0, 0));
  picture.PSet(2, 3, platform::rgb(1, 2, 250));
  picture.Visible = true;
  QWidget& window = show(form);
  const QImage frame = widget_of(window, form.Frame)->grab().toImage();
  std::map<QRgb, char> letters = {
      {qRgb(255, 0, 0), 'R'}, {qRgb(1, 2, 250), 'B'}, {qRgb(9, 8, 7), '-'}};
  letters[frame.pixel(20, 20)] = '#';
  letters[frame.pixel(19, 19)] = ' ';
  std::string seen;
  for (int y = 19; y < 27; ++y) {
    for (int x = 19; x < 26; ++x) seen += letters[frame.pixel(x, y)];  // NUL for any other colour
    seen += '|';
  }
  EXPECT_EQ(seen,
            "       | ##### | #R--# | #---# |"
            " #---# | #--B# | ##### |       |");
}

TEST_F(Desktop, ARefreshPaintsWhatChangedAndNoMore) {
  QWidget& window = show(form);
  for (int i = 1; i <= 60; ++i) form.pictures.Load(i);
  platform::picture_box& picture = form.pictures(50);
  paint_watch watch(widget_of(window, form.Frame));
  const struct {
    const char* what;
    std::function<void()> write;
    QRegion painted;
  } cases[] = {
      {"shown", [&] { picture.Visible = true; }, QRect(20, 20, 6, 6)},
      {"one pixel", [&] { picture.PSet(1, 2, 5); }, QRect(22, 23, 1, 1)},
      {"cleared", [&] { picture.Cls(); }, QRect(21, 21, 4, 4)},
      {"moved", [&] { picture.Move(1500, 300); }, QRegion(20, 20, 6, 6) + QRect(100, 20, 6, 6)},
      {"moved to and fro", [&] { picture.Move(0, 0), picture.Move(1500, 300); }, QRegion()},
      {"hidden", [&] { picture.Visible = false; }, QRect(100, 20, 6, 6)},
      {"drawn on while hidden", [&] { picture.PSet(1, 1, 5); }, QRegion()},
  };
  for (const auto& c : cases) {
    watch.painted = {};
    platform::run_event([&] {
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
  platform::run_event([&] {
    QMetaObject::invokeMethod(
        &window, [&] { window.close(); }, Qt::QueuedConnection);
    small_form second;
    second.Visible = true;
    second.Refresh();
    paint_watch watch(widget_of(*screen.window_of(second), second.Button));
    second.Button.Caption = "Other";
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
  for (const char* row : {"one", "two", "three"}) form.List.AddItem(row);
  form.List.Click = [&] { log += "click" + std::to_string(form.List.ListIndex()) + " "; };
  form.List.DblClick = [&] { log += "double "; };
  form.Button.Click = [&] { log += "go "; };
  form.Field.LostFocus = [&] { log += "lost:" + form.Field.Text() + " "; };
  form.pictures.DblClick = [&](int i) { log += "picture" + std::to_string(i) + " "; };
  form.Unload = [&] { log += "close "; };
  form.pictures.Load(1);
  form.pictures(1).Visible = true;
  QWidget& window = show(form);
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto* list = static_cast<QAbstractItemView*>(widget_of(window, form.List));
  QWidget* button = widget_of(window, form.Button);
  QWidget* field = widget_of(window, form.Field);
  QWidget* frame = widget_of(window, form.Frame);
  const auto row = [&](int r) { return list->visualRect(list->model()->index(r, 0)).center(); };
  const auto press = [&](const QPoint& at) {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
  };
  const QPoint picture(22, 22);
  const QPoint beside(60, 190);
  const auto disabled = [&] {
    form.Enabled = false;
    press(row(0));
    QTest::keyClick(list, Qt::Key_Up);
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClicks(field, "9");
    window.close();
  };
  const struct {
    const char* what;
    std::function<void()> act;
    std::string log;
  } cases[] = {
      {"press", [&] { press(row(1)); }, "click1 "},
      {"press on the selected row", [&] { press(row(1)); }, "click1 "},
      {"press beneath the rows", [&] { press(beside); }, ""},
      {"double click", [&] { double_press(list->viewport(), row(1)); }, "double "},
      {"arrow", [&] { QTest::keyClick(list, Qt::Key_Down); }, "click2 "},
      {"arrow at the end", [&] { QTest::keyClick(list, Qt::Key_Down); }, ""},
      {"tab to the button", [&] { QTest::keyClick(list, Qt::Key_Tab); }, ""},
      {"Enter", [&] { QTest::keyClick(button, Qt::Key_Return); }, "go "},
      {"Space", [&] { QTest::keyClick(button, Qt::Key_Space); }, "go "},
      {"tab to the field", [&] { QTest::keyClick(button, Qt::Key_Tab); }, ""},
      {"typing beyond the limit", [&] { QTest::keyClicks(field, "1234"); }, ""},
      {"click elsewhere", [&] { QTest::mouseClick(button, Qt::LeftButton); }, "lost:123 go "},
      {"double click on a picture", [&] { double_press(frame, picture); }, "picture1 "},
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
  EXPECT_EQ(form.Field.Text(), "123");
  EXPECT_TRUE(window.isVisible());
}

TEST_F(Desktop, KeysReachEveryPictureOnShow) {
  int opened = 0;
  form.pictures.DblClick = [&](int i) { opened = i; };
  const QPoint places[] = {{0, 0}, {300, 300}, {600, 300}, {900, 300}, {300, 600}, {840, 600}};
  for (int i = 1; i <= 5; ++i) {
    form.pictures.Load(i);
    form.pictures(i).Move(places[i].x(), places[i].y());
    form.pictures(i).Visible = i != 2;
  }
  QWidget& window = show(form);
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QWidget* field = widget_of(window, form.Field);
  QWidget* frame = widget_of(window, form.Frame);
  const auto has_cursor = [&] {  // round the first picture
    return frame->grab().toImage().pixelColor(19, 19) == frame->palette().highlight().color();
  };
  field->setFocus();
  QTest::keyClick(field, Qt::Key_Tab);
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
  for (int i = 1; i <= 5; ++i) form.pictures(i).Visible = false;
  QCoreApplication::processEvents();
  EXPECT_FALSE(has_cursor());
  QTest::keyClick(frame, Qt::Key_Tab);
  QTest::keyClick(window.focusWidget(), Qt::Key_Backtab);
  EXPECT_EQ(window.focusWidget(), field) << "there is no picture to stop at";
}

double luminance(const QColor& c) {
  const auto linear = [](double v) { return std::pow(v, 2.2); };
  return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
}

TEST_F(Desktop, TextIsReadableOnEveryBackgroundInLightAndDarkThemes) {
  const QPalette light = QApplication::palette();
  for (const QPalette& theme : {light, QPalette(QColor(35, 35, 38))}) {
    QApplication::setPalette(theme);
    for (const platform::colour back :
         {ostrane::pale_green, ostrane::pale_cyan, platform::system_menu, platform::system_window,
          platform::system_button_face, platform::system_light, platform::rgb(0, 0, 60)}) {
      const QPalette used = desktop::with_colours({}, QPalette::Base, QPalette::Text, back);
      for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const auto [dark, bright] = std::minmax({luminance(used.color(group, QPalette::Text)),
                                                 luminance(used.color(group, QPalette::Base))});
        EXPECT_GE((bright + 0.05) / (dark + 0.05), 4.5) << std::hex << back;
      }
    }
  }
  QApplication::setPalette(light);
}

TEST_F(Desktop, NothingIsCutOffAtTheDesignSize) {
  ostrane::make_forms_afresh();
  for (platform::form* designed :
       std::initializer_list<platform::form*>{&ostrane::Form1, &ostrane::Form2, &ostrane::Form3,
                                              &ostrane::Form4, &ostrane::Form5, &ostrane::Form6}) {
    const QWidget& window = show(*designed);
    const auto fits = [&](const QWidget& widget, const QString& text, int margin) {
      EXPECT_LE(desktop::wrapped_height(text, widget.font(), widget.width() - margin),
                widget.height())
          << designed->designed.name << " " << text.toStdString();
    };
    for (const auto* label : window.findChildren<QLabel*>()) fits(*label, label->text(), 0);
    for (const auto* button : window.findChildren<QPushButton*>()) fits(*button, button->text(), 6);
    for (const auto* field : window.findChildren<QLineEdit*>()) fits(*field, "Xg", 0);
    platform::run_event([&] { designed->Visible = false; });
  }
}

TEST_F(Desktop, TextKeepsItsCharactersOnTheWayToTheScreenAndBack) {
  std::string all;
  for (int c = 1; c < 256; ++c) all += static_cast<char>(c);
  EXPECT_EQ(desktop::from_screen(desktop::to_screen(all)), all);
  EXPECT_EQ(desktop::with_plain_breaks("a\r\nb\rc\nd\n\re", true), "a\nb\nc\nd\ne");
  EXPECT_EQ(desktop::with_plain_breaks("a\n\rb"), "a\n\nb");
}

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  QApplication::setStyle(new desktop::desktop_style);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
