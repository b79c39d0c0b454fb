// The keys, the search, the enlarged picture, drops and drags of the main window.
#include <QAbstractItemView>
#include <QClipboard>
#include <QDrag>
#include <QDragEnterEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTimer>
#include <QToolTip>

#include "main_window_fixture.h"
#include "state/tool_state.h"

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
  EXPECT_EQ(bar->geometry().bottomLeft(), list->geometry().bottomLeft());
  const auto seen = [&] {
    const QString hint = field->text().isEmpty() ? field->placeholderText() : field->selectedText();
    return (bar->isVisible() ? hint + " " + bar->findChild<QLabel*>()->text() + " " : QString())
               .toStdString() +
           selected();
  };
  constexpr auto none = Qt::NoModifier;
  const std::tuple<const char*, int, Qt::KeyboardModifiers, const char*> steps[] = {
      {"", Qt::Key_Return, none, "Find   shows -1"},
      {"q", Qt::Key_Return, none, " 0  shows -1"},
      {"\ba", Qt::Key_Return, none, " 1 of 2 0 shows 0"},
      {"", Qt::Key_F3, none, " 2 of 2 1 shows 1"},
      {"", Qt::Key_F3, none, " 1 of 2 0 shows 0"},
      {"", Qt::Key_Return, Qt::ShiftModifier, " 2 of 2 1 shows 1"},
      {"", Qt::Key_Escape, none, "1 shows 1"},
      {"", Qt::Key_F3, Qt::ShiftModifier, "0 shows 0"},
      {"", Qt::Key_F, Qt::ControlModifier, "a 1 of 2 0 shows 0"},
      {"", Qt::Key_G, Qt::ControlModifier, "Go to number of 5 0 shows 0"},
      {"4", Qt::Key_Return, none, "3 shows 3"},
      {"", Qt::Key_G, Qt::ControlModifier, "Go to number of 5 3 shows 3"},
      {"6", Qt::Key_Return, none, "3 shows 3"},
      {"", Qt::Key_G, Qt::ControlModifier, "Go to number of 5 3 shows 3"},
      {"1", Qt::Key_Return, none, "0 shows 0"},
  };
  for (const auto& [typed, pressed, modifiers, expected] : steps) {
    for (const char* c = typed; *c != '\0'; ++c) QTest::keyClick(field, *c);
    key(pressed, modifiers);
    EXPECT_EQ(seen(), expected) << typed << pressed;
    EXPECT_TRUE(bar->isVisible() ? field->hasFocus() : list->hasFocus());
  }
}

// The size of the enlarged picture, which has 40, 60 or 80 pixels.
TEST_F(Extras, OnePictureIsEnlarged) {
  press_row(2);
  const auto* area = canvas->findChild<QAbstractScrollArea*>("zoom");
  const auto wheel = [&](int turned, Qt::KeyboardModifiers held = Qt::ControlModifier) {
    turn_wheel(*canvas, {70, 70}, turned, held);
    handle_events();
  };
  const auto ctrl = [&](int pressed) { key(pressed, Qt::ControlModifier); };
  const std::tuple<const char*, std::function<void()>, const char*> steps[] = {
      {"wheel without Ctrl", [&] { wheel(120, {}); }, ""},
      {"wheel", [&] { wheel(120); }, "120(25,53 124x124)"},
      {"wheel", [&] { wheel(120); }, "180(8,53 184x184)"},
      {"wheel back", [&] { wheel(-120); }, "120(25,53 124x124)"},
      {"arrow", [&] { key(Qt::Key_Right); }, "160(78,53 164x164)"},
      {"Home", [&] { key(Qt::Key_Home); }, "80(8,53 84x84)"},
      {"Escape", [&] { key(Qt::Key_Escape); }, ""},
      {"Ctrl++", [&] { ctrl(Qt::Key_Plus); }, "80(8,53 84x84)"},
      {"motion", [] { write([] { Form1.Command5.Click(); }); }, "80(8,53 84x84)"},
      {"first tick", [] { write([] { Form1.Timer1.Timer(); }); }, "80(8,53 84x84)"},
      {"second tick", [] { write([] { Form1.Timer1.Timer(); }); }, "120(8,53 124x124)"},
      {"end", [] { write([] { Form1.Timer1.Timer(), Form1.Timer1.Timer(); }); },
       "160(8,53 164x164)"},
      {"Prev", [] { write([] { Form1.Command3.Click(); }); }, "120(8,53 124x124)"},
      {"Ctrl+-", [&] { ctrl(Qt::Key_Minus); }, ""},
      {"to 4 times",
       [&] {
         for (int i = 0; i < 3; ++i) ctrl(Qt::Key_Plus);
       },
       "240(8,53 244x244)"},
      {"to 8 times", [&] { ctrl(Qt::Key_Plus), ctrl(Qt::Key_Plus); }, "480(8,53 481x377)"},
      {"Ctrl+0", [&] { ctrl(Qt::Key_0); }, ""},
  };
  write([] { Form1.Timer1.Interval = 60000; });
  for (const auto& [what, act, size] : steps) {
    act();
    EXPECT_EQ(zoomed(), size) << what;
    EXPECT_TRUE(*size == '\0' || canvas->hasFocus()) << what;
  }
  ctrl(Qt::Key_Plus);
  const QImage seen = picture_of(*area->viewport());
  EXPECT_EQ(seen.pixel(0, 0), seen.pixel(1, 1));
  EXPECT_EQ(seen.pixel(0, 0), seen.pixel(2, 2));
  EXPECT_NE(seen.pixel(0, 0), seen.pixel(2, 1));
}

// Of the menus: "-" is a line, "!" a disabled item, "*" a checked one.
static std::string text_of(const QMenu& menu) {
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

TEST_F(Extras, MenusShowWhatCanBeDone) {
  using step = std::function<void()>;
  const auto in_bar = [&](int index) {
    const QAction* column = window->findChild<QMenuBar*>()->actions()[index];
    return column->text().toStdString() + ":" + text_of(*column->menu());
  };
  EXPECT_EQ(in_bar(0), "&File:&Open|-|&Exit|");
  EXPECT_EQ(in_bar(1), "&Import/export:&Extract Ostrane.dat Files|&Make Ostrane.dat|");
  EXPECT_EQ(in_bar(2),
            "&Reports:&Save filelist as \"s16list.txt\"|-|&Compare current Ostrane.dat with "
            "\"s16list.txt\"|");
  const auto on_picture = [&] { right_press(canvas, QPoint(20, 60)); };
  const step by_key = [&] { key(Qt::Key_F10, Qt::ShiftModifier); };
  const std::string view_items =
      "|-|&Zoom{&1 (own size)*|&2 times|&3 times|&4 times|&8 times|}|&Background{As "
      "&designed*|&Chequered|&Black|&White|&Magenta|}|";
  const std::tuple<const char*, step, step, std::string> cases[] = {
      {"a row", [] {}, [&] { right_press(list->viewport(), middle_of(1)); },
       "&Extract this entry\u2026|"},
      {"several", [&] { press_row(0), press_row(1, Qt::ControlModifier); }, by_key,
       "&Extract 2 entries\u2026|E&xport 2 entries as pictures\u2026|"},
      {"a text", [&] { press_row(0); },
       [&] { widget_of(*window, Form1.Text6)->setFocus(), by_key(); },
       "&Undo\tCtrl+Z!|&Redo\tCtrl+Y!|-|Cu&t\tCtrl+X!|&Copy!|&Paste\tCtrl+V!|Delete!|-|Select "
       "All\tCtrl+A|-|&Fixed-pitch font|"},
      {"a picture", [&] { press_row(2); }, on_picture,
       "&Copy picture|&Save picture\u2026|S&ave series\u2026" + view_items},
      {"another", [&] { ostrane::tool_state.archive_is_open = ostrane::flag_false; }, on_picture,
       "&Copy picture|&Save picture\u2026!|S&ave series\u2026!" + view_items},
  };
  for (const auto& [what, before, open, expected] : cases) {
    before();
    std::string text;
    when_open<QMenu>([&](QMenu& menu) { text = text_of(menu), menu.close(); });
    open();
    EXPECT_EQ(text, expected) << what;
  }
}

TEST_F(Extras, TheMenuOfAPictureZoomsAndSetsTheBackground) {
  press_row(2);
  const auto pick = [&](std::initializer_list<Qt::Key> keys) {
    when_open<QMenu>([=](QMenu& /*menu*/) {
      for (const Qt::Key pressed : keys)
        QTest::keyClick(QApplication::activePopupWidget(), pressed);
    });
    paint_watch watch(canvas);
    right_press(canvas, QPoint(20, 60));
    return watch.painted.contains(QPoint(140, 140));
  };
  const QPoint unset(18 + 5, 58 + 20);
  const auto colour = [&] { return picture_of(*canvas).pixelColor(unset); };
  const QColor designed = colour();
  EXPECT_TRUE(pick({Qt::Key_B, Qt::Key_M})) << "the other pictures follow";
  EXPECT_EQ(colour(), QColor(Qt::magenta));
  pick({Qt::Key_B, Qt::Key_W});
  EXPECT_EQ(colour(), QColor(Qt::white));
  pick({Qt::Key_B, Qt::Key_B});
  EXPECT_EQ(colour(), QColor(Qt::black));
  pick({Qt::Key_B, Qt::Key_C});
  EXPECT_NE(picture_of(*canvas).pixelColor(unset + QPoint(8, 0)), colour());
  pick({Qt::Key_B, Qt::Key_D});
  EXPECT_EQ(colour(), designed);
  pick({Qt::Key_Z, Qt::Key_3});
  EXPECT_EQ(zoomed().substr(0, 3), "120");
  pick({Qt::Key_Z, Qt::Key_1});
  EXPECT_EQ(zoomed(), "");
}

TEST_F(Extras, TabReachesWhatCanBeUsed) {
  const auto tour = [&](Qt::Key pressed) {
    QStringList names;
    for (key(pressed); !list->hasFocus() && names.size() < 20; key(pressed)) {
      pressed == Qt::Key_Tab ? names.append(focused().c_str()) : names.prepend(focused().c_str());
    }
    return names.join(" ").toStdString();
  };
  const std::tuple<const char*, std::function<void()>, const char*> cases[] = {
      {"nothing", [&] { list->setFocus(); },
       "Text1 Command3 Text2 Text3 Text4 Command4 Command5 Command6 Text5"},
      {"pictures", [&] { press_row(2); },
       "Text1 pictures Text2 Text3 Text4 Command5 Command6 Text5"},
      {"a text", [&] { press_row(0); }, "Text1 Text2 Text3 Text4 Command5 Command6 Text5 Text6"},
  };
  for (const auto& [what, act, expected] : cases) {
    act();
    EXPECT_EQ(tour(Qt::Key_Tab), expected) << what;
    EXPECT_EQ(tour(Qt::Key_Backtab), expected) << what;
  }
}

TEST_F(Extras, KeysAct) {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  std::string opened;
  const auto name_of_dialog = [&] {
    when_open<QDialog>([&](QDialog& dialog) {
      opened = dialog.windowTitle().toStdString();
      if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
        opened += std::to_string(box->text().count('\n') + 1);
      } else {
        opened += " " + dialog.findChild<QLineEdit*>()->text().toStdString();
      }
      dialog.reject();
    });
  };
  const auto copied = [&] {
    return clipboard.image().isNull() ? clipboard.text().toStdString()
                                      : std::to_string(clipboard.image().width());
  };
  const auto copy = [&](const forms_layer::control& from, int moved = 0) {
    QWidget* at = widget_of(*window, from);
    (at == nullptr ? canvas : at)->setFocus();
    if (moved != 0) key(moved);
    clipboard.clear();
    key(Qt::Key_C, Qt::ControlModifier);
    return copied();
  };
  press_row(2);
  EXPECT_EQ(copy(Form1.List1), "PIC.SHP");
  EXPECT_EQ(copy(Form1.Command5), "40");
  EXPECT_EQ(copy(Form1.s16_image(1), Qt::Key_Right), "60");
  key(Qt::Key_L, Qt::ControlModifier);
  EXPECT_TRUE(list->hasFocus());
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, std::string> dialogs[] = {
      {Qt::Key_F1, {}, "Ostrane.dat-tool" + std::to_string(Form1.keys.size())},
      {Qt::Key_E, Qt::ControlModifier, "Extract this entry PIC.SHP"},
      {Qt::Key_S, Qt::ControlModifier, "Save picture PIC-0002.png"},
  };
  for (const auto& [pressed, modifiers, expected] : dialogs) {
    name_of_dialog();
    key(pressed, modifiers);
    EXPECT_EQ(opened, expected);
  }
  key(Qt::Key_F10);
  EXPECT_EQ(window->findChild<QMenuBar*>()->activeAction()->text(), "&File");
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  ostrane::write_bytes(folder / "ostrane.dat", ostrane::archive_bytes({{"N.TXT", ""}}));
  key(Qt::Key_F5);
  EXPECT_EQ(Form1.List1.List(0), "N.TXT");
  key(Qt::Key_O, Qt::ControlModifier);
  QWidget& dialog = *screen.window_of(ostrane::Form2);
  EXPECT_TRUE(dialog.isVisible());
  write([] { Form1.List1.Clear(); });
  key(Qt::Key_F5);
  EXPECT_EQ(Form1.List1.ListCount(), 0) << "the window is disabled";
  QTest::keyClick(dialog.windowHandle(), Qt::Key_O, Qt::ControlModifier);
  handle_events();
  EXPECT_FALSE(ostrane::Form2.Visible());
  EXPECT_EQ(Form1.List1.List(0), "N.TXT");
  QTimer::singleShot(0, [&] { key(Qt::Key_Q, Qt::ControlModifier); });
  QTimer limit;
  limit.callOnTimeout([] { QApplication::exit(1); });
  limit.start(60000);
  EXPECT_EQ(QApplication::exec(), 0);
}

// Files are written when another program asks for them after the drop.
TEST_F(Extras, RowsAreDraggedOut) {
  const QPoint start = middle_of(1);
  const auto drag_by = [&](int pixels) -> const QDrag* {
    press_row(0), press_row(1, Qt::ControlModifier);
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, start);
    QMouseEvent moved(QEvent::MouseMove, start + QPoint(pixels, 0),
                      list->viewport()->mapToGlobal(start + QPoint(pixels, 0)), Qt::NoButton,
                      Qt::LeftButton, {});
    QCoreApplication::sendEvent(list->viewport(), &moved);
    return window->findChild<QDrag*>();
  };
  EXPECT_EQ(drag_by(QApplication::startDragDistance() - 1), nullptr);
  QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, start);
  EXPECT_EQ(selected(), "1 shows 1");
  const QDrag* drag = drag_by(QApplication::startDragDistance());
  ASSERT_NE(drag, nullptr);
  const auto files = [&] {
    const QList<QUrl> urls = drag->mimeData()->urls();
    std::string all;
    for (const QUrl& url : urls) {
      all += url.fileName().toStdString() + ":" +
             ostrane::bytes_of(url.toLocalFile().toStdString()) + " ";
    }
    return all;
  };
  EXPECT_EQ(files(), "A.TXT: AB.TXT: ") << "while the button is held";
  QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, start);
  EXPECT_EQ(files(), "A.TXT:text AB.TXT:text ");
  EXPECT_EQ(selected(), "01 shows 0");
  when_open<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text(), "full");
    box.accept();
  });
  screen.drag_files({"x"}, [](const fs::path&) { return "full"; });
  QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, start);
  window->findChildren<QDrag*>().last()->mimeData()->urls();
  handle_events();
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
    when_open<QMenu>([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_F); });
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
