// The keys, the search, the enlarged picture, drops and drags of the main window.
#include <QAbstractItemView>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>

#include "archive_bytes.h"
#include "data/icon_packer.h"
#include "desktop/file_drag.h"
#include "desktop_fixture.h"
#include "handlers/start_up.h"

using ostrane::Form1;

struct Extras : Desktop {
  Extras() {
    QTest::qWait(QApplication::doubleClickInterval() / 4);
    std::vector<ostrane::shp_icon> icons;
    for (const int size : {40, 60, 80}) {
      ostrane::picture drawn(size, size);
      for (int i = 0; i < size - 10; ++i) drawn.set(i, i, 200);
      icons.push_back(ostrane::make_icon(drawn));
    }
    ostrane::write_bytes(folder / "ostrane.dat",
                         ostrane::archive_bytes({{"A.TXT", "text"},
                                                 {"AB.TXT", "text"},
                                                 {"PIC.SHP", shp_file(icons)},
                                                 {"Z.TXT", "text"}}));
    ostrane::start_tool("C:\\", nullptr, folder);
    window = &show(Form1);
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    list = static_cast<QAbstractItemView*>(widget_of(*window, Form1.List1));
    canvas = widget_of(*window, Form1.Command5)->parentWidget();
  }
  void key(int pressed, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::keyClick(window->windowHandle(), static_cast<Qt::Key>(pressed), modifiers);
    handle_events();
  }
  void press_row(int row, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, middle_of(row));
    handle_events();
  }
  QPoint middle_of(int row) const {
    return list->visualRect(list->model()->index(row, 0)).center();
  }
  std::string selected() const {
    std::string rows;
    for (int row = 0; row < Form1.List1.ListCount(); ++row) {
      if (list->selectionModel()->isRowSelected(row)) rows += std::to_string(row);
    }
    return rows + " shows " + std::to_string(Form1.List1.ListIndex());
  }
  // The enlarged picture: its size, or "" if it is closed.
  std::string zoomed() const {
    const auto* area = canvas->findChild<QAbstractScrollArea*>("zoom");
    if (!area->isVisible()) return "";
    return std::to_string(area->viewport()->findChild<QWidget*>()->width());
  }

  QWidget* window = nullptr;
  QAbstractItemView* list = nullptr;
  QWidget* canvas = nullptr;
};

TEST_F(Extras, CtrlAndShiftSelectMoreRows) {
  press_row(1);
  EXPECT_EQ(selected(), "1 shows 1");
  const std::tuple<std::function<void()>, const char*> steps[] = {
      {[&] { press_row(3, Qt::ControlModifier); }, "13 shows 1"},
      {[&] { press_row(1, Qt::ShiftModifier); }, "123 shows 1"},
      {[&] { press_row(2, Qt::ControlModifier); }, "13 shows 1"},
      {[&] { press_row(0); }, "0 shows 0"},
      {[&] { key(Qt::Key_Down, Qt::ShiftModifier); }, "01 shows 0"},
      {[&] { key(Qt::Key_Down, Qt::ShiftModifier); }, "012 shows 0"},
      {[&] { press_row(1); }, "1 shows 1"},
      {[&] { key(Qt::Key_A, Qt::ControlModifier); }, "01234 shows 1"},
      {[&] { key(Qt::Key_Down); }, "2 shows 2"},
      {[&] { QTest::keyClick(list, 'A', Qt::ShiftModifier), handle_events(); }, "0 shows 0"},
  };
  for (const auto& [act, expected] : steps) {
    act();
    EXPECT_EQ(selected(), expected) << &act - &std::get<0>(steps[0]);
  }
}

TEST_F(Extras, TheSearchGoesFromHitToHit) {
  key(Qt::Key_F, Qt::ControlModifier);
  QWidget* bar = window->findChild<QWidget*>("find");
  auto* field = bar->findChild<QLineEdit*>();
  ASSERT_TRUE(field->hasFocus());
  QTest::keyClicks(field, "a");
  const auto count = [&] { return bar->findChild<QLabel*>()->text().toStdString(); };
  EXPECT_EQ(count() + selected(), "2 shows -1");
  const std::tuple<int, Qt::KeyboardModifiers, const char*> steps[] = {
      {Qt::Key_Return, {}, "1 of 20 shows 0"},
      {Qt::Key_F3, {}, "2 of 21 shows 1"},
      {Qt::Key_F3, {}, "1 of 20 shows 0"},
      {Qt::Key_F3, Qt::ShiftModifier, "2 of 21 shows 1"},
  };
  for (const auto& [pressed, modifiers, expected] : steps) {
    key(pressed, modifiers);
    EXPECT_EQ(count() + selected(), expected);
  }
  key(Qt::Key_Escape);
  EXPECT_TRUE(!bar->isVisible() && list->hasFocus());
  key(Qt::Key_G, Qt::ControlModifier);
  QTest::keyClicks(field, "4");
  key(Qt::Key_Return);
  EXPECT_EQ(selected(), "3 shows 3");
  EXPECT_FALSE(bar->isVisible());
}

// The picture of 40, 60 or 80 pixels that is enlarged.
TEST_F(Extras, OnePictureIsEnlarged) {
  press_row(2);
  const QPoint on_second = QPoint(70, 70);
  const auto wheel = [&](int turn) {
    QWheelEvent turned(on_second, canvas->mapToGlobal(on_second), {}, {0, turn}, Qt::NoButton,
                       Qt::ControlModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(canvas, &turned);
    handle_events();
  };
  const std::tuple<const char*, std::function<void()>, const char*> steps[] = {
      {"wheel", [&] { wheel(120); }, "120"},
      {"wheel", [&] { wheel(120); }, "180"},
      {"wheel back", [&] { wheel(-120); }, "120"},
      {"arrow", [&] { key(Qt::Key_Right); }, "160"},
      {"Home", [&] { key(Qt::Key_Home); }, "80"},
      {"Escape", [&] { key(Qt::Key_Escape); }, ""},
      {"Ctrl++", [&] { key(Qt::Key_Plus, Qt::ControlModifier); }, "80"},
      {"motion", [] { write([] { Form1.Command5.Click(); }); }, "80"},
      {"first tick", [] { write([] { Form1.Timer1.Timer(); }); }, "80"},
      {"second tick", [] { write([] { Form1.Timer1.Timer(); }); }, "120"},
      {"end", [] { write([] { Form1.Timer1.Timer(), Form1.Timer1.Timer(); }); }, "160"},
      {"Prev", [] { write([] { Form1.Command3.Click(); }); }, "120"},
      {"Ctrl+-", [&] { key(Qt::Key_Minus, Qt::ControlModifier); }, ""},
  };
  write([] { Form1.Timer1.Interval = 60000; });
  for (const auto& [what, act, size] : steps) {
    act();
    EXPECT_EQ(zoomed(), size) << what;
  }
}

TEST_F(Extras, TheMenuOfAPictureZoomsAndSetsTheBackground) {
  press_row(2);
  const auto pick = [&](std::initializer_list<Qt::Key> keys) {
    QTimer::singleShot(20, [=] {
      for (const Qt::Key pressed : keys)
        QTest::keyClick(QApplication::activePopupWidget(), pressed);
    });
    QTest::mouseClick(window->windowHandle(), Qt::RightButton, {},
                      canvas->mapTo(window, QPoint(20, 60)));
    handle_events();
  };
  const QPoint unset(18 + 5, 58 + 20);
  const auto colour = [&] { return picture_of(*canvas).pixelColor(unset); };
  const QColor designed = colour();
  pick({Qt::Key_B, Qt::Key_M});
  EXPECT_EQ(colour(), QColor(Qt::magenta));
  pick({Qt::Key_B, Qt::Key_B});
  EXPECT_EQ(colour(), QColor(Qt::black));
  pick({Qt::Key_B, Qt::Key_C});
  EXPECT_NE(picture_of(*canvas).pixelColor(unset + QPoint(8, 0)), colour());
  pick({Qt::Key_B, Qt::Key_D});
  EXPECT_EQ(colour(), designed);
  pick({Qt::Key_Z, Qt::Key_3});
  EXPECT_EQ(zoomed(), "120");
}

TEST_F(Extras, KeysAct) {
  press_row(2);
  QGuiApplication::clipboard()->clear();
  widget_of(*window, Form1.Command5)->setFocus();
  key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->image().width(), 40);
  key(Qt::Key_L, Qt::ControlModifier);
  EXPECT_TRUE(list->hasFocus());
  QString keys;
  QTimer::singleShot(20, [&keys] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    keys = box->text();
    box->accept();
  });
  key(Qt::Key_F1);
  EXPECT_EQ(keys.count('\n') + 1, static_cast<int>(Form1.keys.size()));
  key(Qt::Key_O, Qt::ControlModifier);
  EXPECT_TRUE(ostrane::Form2.Visible());
  QWidget& dialog = *screen.window_of(ostrane::Form2);
  QTest::keyClick(dialog.windowHandle(), Qt::Key_O, Qt::ControlModifier);
  handle_events();
  EXPECT_FALSE(ostrane::Form2.Visible());
}

TEST_F(Extras, ADropOpensAnArchive) {
  ostrane::write_bytes(folder / "sub" / "ostrane.dat", ostrane::archive_bytes({{"N.TXT", ""}}));
  const auto drop = [&](std::initializer_list<const char*> names) {
    QList<QUrl> urls;
    for (const char* name : names) {
      urls += QUrl::fromLocalFile(QString::fromStdString((folder / name).string()));
    }
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent over({50, 300}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window, &over);
    if (!over.isAccepted()) return false;
    QDropEvent dropped({50, 300}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(window, &dropped);
    handle_events();
    return true;
  };
  EXPECT_FALSE(drop({"a.txt"}));
  EXPECT_FALSE(drop({"sub", "ostrane.dat"}));
  EXPECT_EQ(Form1.List1.ListCount(), 5);
  EXPECT_TRUE(drop({"sub"}));
  EXPECT_EQ(Form1.List1.List(0), "N.TXT");
  EXPECT_TRUE(drop({"ostrane.dat"}));
  EXPECT_EQ(Form1.List1.List(0), "A.TXT");
  write([] { Form1.Enabled = false; });
  EXPECT_FALSE(drop({"sub"}));
}

TEST_F(Extras, ARowTellsItsSize) {
  QHelpEvent pointed(QEvent::ToolTip, middle_of(0), list->viewport()->mapToGlobal(middle_of(0)));
  QCoreApplication::sendEvent(list->viewport(), &pointed);
  EXPECT_TRUE(QToolTip::text().contains("A.TXT: 4 bytes at ")) << QToolTip::text().toStdString();
}

TEST_F(Extras, ATextCanHaveAFixedPitch) {
  press_row(0);
  QWidget* text = widget_of(*window, Form1.Text6);
  const QFont designed = text->font();
  for (const bool fixed : {true, false}) {
    QTimer::singleShot(20, [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_F); });
    QContextMenuEvent asked(QContextMenuEvent::Mouse, {9, 9}, text->mapToGlobal(QPoint(9, 9)));
    QCoreApplication::sendEvent(static_cast<QAbstractScrollArea*>(text)->viewport(), &asked);
    EXPECT_EQ(text->font().families().first() == "Liberation Mono", fixed);
  }
  EXPECT_EQ(text->font(), designed);
}

TEST_F(Extras, ShiftPlaysTheMotionInALoop) {
  press_row(2);
  QWidget* button = widget_of(*window, Form1.Command5);
  button->setFocus();
  QTest::keyClick(window->windowHandle(), Qt::Key_Space, Qt::ShiftModifier);
  EXPECT_TRUE(Form1.Timer1.Enabled());
  for (int i = 0; i < 5; ++i) write([] { Form1.Timer1.Timer(); });
  EXPECT_TRUE(Form1.Timer1.Enabled());
}
