// What the user does reaches the tool, also by keyboard and through a screen reader.
#include <QAbstractItemView>
#include <QAccessible>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScrollBar>

#include "desktop/designed_look.h"
#include "desktop_fixture.h"

static void press(QWidget* widget, const QPoint& at = {}) {
  QTest::mouseClick(widget, Qt::LeftButton, {}, at);
}

// The second press of a double click.
static void press_again(QWidget* widget, const QPoint& at = {}) {
  QTest::mouseDClick(widget, Qt::LeftButton, {}, at);
}

struct Input : Desktop {
  QAbstractItemView* rows_of(const forms_layer::control& shown) {
    return static_cast<QAbstractItemView*>(widget_of(window, shown));
  }
  static QPoint middle_of(QAbstractItemView* list, int row) {
    return list->visualRect(list->model()->index(row, 0)).center();
  }
  static void press_row(QAbstractItemView* list, int row, bool again = false) {
    const QPoint middle = middle_of(list, row);
    again ? press_again(list->viewport(), middle) : press(list->viewport(), middle);
  }

  std::string log;
  QWidget& window = show_active();
  QWidget* canvas = canvas_of(window, form);
};

TEST_F(Input, ReachesTheTool) {
  for (int i = 0; i < 9; ++i) form.list.AddItem("row " + std::to_string(i));
  form.list.Click = [&] { log += "click" + std::to_string(form.list.ListIndex()) + " "; };
  form.list.DblClick = [&] { log += "double" + std::to_string(form.list.ListIndex()) + " "; };
  form.button.Click = [&] { log += "go "; };
  form.inner.Click = [&] { log += "inner "; };
  form.label.Click = [&] { log += "label "; };
  form.field.LostFocus = [&] { log += "lost:" + form.field.Text() + " "; };
  form.pictures.DblClick = [&](int i) { log += "picture" + std::to_string(i) + " "; };
  form.first.Click = [&] { log += "first "; };
  form.drives.Change = [&] { log += form.drives.Drive() + " "; };
  form.folders.Change = [&] { log += form.folders.Path() + " "; };
  form.files.Click = [&] { log += form.files.FileName() + " "; };
  form.Unload = [&] { log += "close "; };
  form.Resize = [&] { log += "resize" + std::to_string(form.client_width()) + " "; };
  write([&] { picture().Visible = true; });
  QAbstractItemView* list = rows_of(form.list);
  QAbstractItemView* folders = rows_of(form.folders);
  QAbstractItemView* files = rows_of(form.files);
  QWidget* button = widget_of(window, form.button);
  QWidget* field = widget_of(window, form.field);
  QWidget* label = widget_of(window, form.label);
  auto* drives = static_cast<QComboBox*>(widget_of(window, form.drives));
  QMenu* menu = window.findChild<QMenuBar*>()->actions()[0]->menu();
  const QPoint on_picture(18, 58);
  const QPoint beside(60, 190);
  const auto disabled = [&] {
    list->setFocus();
    form.Enabled = false;
    QTest::keyClick(list, Qt::Key_Tab);
    EXPECT_TRUE(list->hasFocus());
    press_row(list, 0);
    QTest::keyClick(list, Qt::Key_Up);
    press(button);
    QTest::keyClicks(field, "9");
    window.close();
    form.Enabled = true;
  };
  const std::tuple<const char*, std::function<void()>, std::string> cases[] = {
      {"press", [&] { press_row(list, 1); }, "click1 "},
      {"press on the selected row", [&] { press_row(list, 1); }, "click1 "},
      {"second press, on another row", [&] { press_row(list, 0, true); }, "double1 "},
      {"second press only", [&] { press(button), press_row(list, 2, true); }, "go click2 "},
      {"Ctrl+Space", [&] { QTest::keyClick(list, Qt::Key_Space, Qt::ControlModifier); }, ""},
      {"arrow", [&] { QTest::keyClick(list, Qt::Key_Down); }, "click3 "},
      {"End", [&] { QTest::keyClick(list, Qt::Key_End); }, "click8 "},
      {"arrow at the end", [&] { QTest::keyClick(list, Qt::Key_Down); }, ""},
      {"Enter", [&] { QTest::keyClick(button, Qt::Key_Return); }, "go "},
      {"Space", [&] { QTest::keyClick(button, Qt::Key_Space); }, "go "},
      {"Escape", [&] { QTest::keyClick(field, Qt::Key_Escape); }, "go "},
      {"in the frame", [&] { press(widget_of(window, form.inner)); }, "inner "},
      {"a label", [&] { press(label), QTest::keyClick(label, Qt::Key_Return); }, "label label "},
      {"typing beyond the limit", [&] { field->setFocus(), QTest::keyClicks(field, "123"); }, ""},
      {"focus elsewhere", [&] { canvas->setFocus(); }, "lost:12 "},
      {"double click on a picture",
       [&] { press(canvas, on_picture), press_again(canvas, on_picture); }, "picture1 "},
      {"one begun beside it", [&] { press(canvas, beside), press_again(canvas, on_picture); }, ""},
      {"one that began on another widget",
       [&] { press(canvas, on_picture), press(button), press_again(canvas, on_picture); }, "go "},
      {"drive", [&] { drives->setCurrentIndex(1), emit drives->activated(1); }, "d: [two] "},
      {"folder", [&] { press_row(folders, 1); }, ""},
      {"Enter on it", [&] { QTest::keyClick(folders, Qt::Key_Enter); }, "C:\\sub "},
      {"double click on it", [&] { press_row(folders, 0), press_row(folders, 0, true); }, "C:\\ "},
      {"file", [&] { press_row(files, 0); }, "a.txt "},
      {"menu", [&] { menu->actions()[0]->trigger(); }, "first "},
      {"size", [&] { window.resize(450, 450); }, "resize6750 "},
      {"close", [&] { window.close(); }, "close "},
      {"disabled", disabled, ""},
  };
  for (const auto& [what, act, logged] : cases) {
    log.clear();
    act();
    QCoreApplication::processEvents();
    EXPECT_EQ(log, logged) << what;
    EXPECT_EQ(list->selectionModel()->hasSelection(), form.list.ListIndex() >= 0) << what;
  }
  EXPECT_TRUE(button->isEnabled()) << "a disabled form looks as ever";
  EXPECT_EQ(form.field.Text(), "12");
  EXPECT_TRUE(window.isVisible());
  EXPECT_GT(list->verticalScrollBar()->value(), 0);
  write([&] {
    form.list.Clear();
    for (int i = 0; i < 9; ++i) form.list.AddItem("row");
  });
  EXPECT_EQ(list->verticalScrollBar()->value(), 0) << "another list starts at its first row";
}

// The letters after the first are typed while its handler runs, and are handled late.
TEST_F(Input, LettersTypedDuringAHandlerContinueTheWord) {
  constexpr int interval = 30;
  QApplication::setKeyboardInputInterval(interval);
  for (const char* row : {"ba", "a", "bb", "bbc", "ab"}) form.list.AddItem(row);
  form.list.Click = [] { QTest::qSleep(2 * interval); };
  QAbstractItemView* list = rows_of(form.list);
  const std::tuple<const char*, std::vector<quint64>, int> cases[] = {
      {"ab", {0, interval}, 4},
      {"ab", {0, interval + 1}, 2},
      {"xa", {0, interval + 1}, 1},
      {"bbc", {0, interval, 2 * interval}, 3},
  };
  quint64 start = 0;
  for (const auto& [word, times, row] : cases) {
    write([&] { form.list.ListIndex = -1; });
    start += 1000;
    for (std::size_t i = 0; i < times.size(); ++i) {
      QKeyEvent typed(QEvent::KeyPress, Qt::Key_unknown, {}, QString(QLatin1Char(word[i])));
      typed.setTimestamp(start + times[i]);
      QCoreApplication::sendEvent(list, &typed);
    }
    EXPECT_EQ(form.list.ListIndex(), row) << word << " in " << times.back() << " ms";
  }
  QApplication::setKeyboardInputInterval(-1);
}

TEST_F(Input, KeysReachEveryVisiblePicture) {
  int opened = 0;
  form.pictures.DblClick = [&](int i) { opened = i; };
  const QPoint positions[] = {{0, 0}, {300, 900}, {600, 900}, {900, 900}, {300, 1200}, {840, 1200}};
  for (int i = 1; i <= 5; ++i) {
    form.pictures(i).Move(positions[i].x(), positions[i].y());
    form.pictures(i).Visible = i != 2;
  }
  QCoreApplication::processEvents();
  const auto has_cursor = [&] {  // around the first picture
    return picture_of(*canvas).pixelColor(19, 59) == canvas->palette().highlight().color();
  };
  canvas->setFocus();
  EXPECT_TRUE(has_cursor());
  const std::pair<Qt::Key, int> steps[] = {
      {Qt::Key_Right, 3}, {Qt::Key_Right, 4}, {Qt::Key_Down, 4}, {Qt::Key_End, 5},
      {Qt::Key_Up, 3},    {Qt::Key_Up, 3},    {Qt::Key_Left, 1}, {Qt::Key_Left, 1},
      {Qt::Key_Down, 4},  {Qt::Key_Home, 1}};
  for (const auto& [key, reached] : steps) {
    opened = 0;
    QTest::keyClick(canvas, key);
    QTest::keyClick(canvas, reached % 2 == 0 ? Qt::Key_Space : Qt::Key_Return);
    EXPECT_EQ(opened, reached) << "by key " << key;
  }
  for (int i = 1; i <= 5; ++i) form.pictures(i).Visible = false;
  QCoreApplication::processEvents();
  EXPECT_FALSE(has_cursor());
}

// A menu opens for the item under the mouse, or by key for the selected one. No timer tick runs
// while it is open.
TEST_F(Input, ContextMenusOpenByMouseAndKey) {
  for (int i = 0; i < 3; ++i) form.list.AddItem("row");
  form.list.ContextMenu = form.pictures.ContextMenu = &form.context;
  form.pictures.DblClick = [](int) {};
  form.pick.Click = [&] { log += "picked "; };
  form.context.Popup = [&](int index) {
    log += std::to_string(index) + " ";
    return true;
  };
  form.timer.Timer = [&] { log += "tick", form.timer.Enabled = false; };
  form.timer.Interval = 1;
  write([&] { picture().Visible = true, form.pictures(2).Visible = true; });
  write([&] { form.pictures(2).Move(900, 900), form.list.ListIndex = 2; });
  QAbstractItemView* list = rows_of(form.list);
  const auto right_press = [&](QWidget* on, const QPoint& at) {
    QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, on->mapTo(&window, at));
  };
  const auto by_key = [](QWidget* on) {
    on->setFocus();
    QTest::keyClick(on, Qt::Key_F10, Qt::ShiftModifier);
  };
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[&] { right_press(list->viewport(), middle_of(list, 1)); }, "1 picked tick"},
      {[&] { by_key(list); }, "2 picked tick"},
      {[&] {
         right_press(canvas, {61, 61});
       },
       "2 picked tick"},
      {[&] { by_key(canvas); }, "1 picked tick"},
      {[&] { by_key(widget_of(window, form.inner)); }, ""},
      {[&] {
         right_press(canvas, {5, 150});
       },
       ""},
  };
  for (const auto& [open, expected] : cases) {
    log.clear();
    if (*expected != '\0') {
      when_open<QMenu>([&](QMenu& menu) {
        form.timer.Enabled = true;
        QTest::qWait(20);
        QTest::keyClick(&menu, menu.activeAction() == nullptr ? Qt::Key_P : Qt::Key_Return);
      });
    }
    open();
    handle_events();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor(
        [&, length = std::string(expected).size()] { return log.size() >= length; }));
    EXPECT_EQ(log, expected) << &open - &cases[0].first;
  }
}

TEST_F(Input, SaveDialogsAndTheClipboard) {
  picture().Width = 60;
  picture().PSet(0, 0, forms_layer::rgb(1, 2, 3));
  screen.copy_picture(picture());
  const QImage copied = QGuiApplication::clipboard()->image();
  EXPECT_EQ(copied.size(), QSize(2, picture().rows()));
  EXPECT_EQ(copied.pixel(0, 0), qRgb(1, 2, 3));
  EXPECT_EQ(qAlpha(copied.pixel(1, 0)), 0);
  when_open<QFileDialog>([&](QFileDialog& opened) {
    QFileDialog* dialog = &opened;
    dialog->setDirectory(QString::fromStdString(folder.string()));
    EXPECT_EQ(dialog->findChild<QLineEdit*>()->text(), "A\u00C9-sheet.png");
    auto* kinds = dialog->findChild<QComboBox*>("fileTypeCombo");
    kinds->setFocus();
    kinds->setCurrentIndex(1);
    emit kinds->activated(1), emit kinds->textActivated(kinds->currentText());
    EXPECT_EQ(dialog->findChild<QLineEdit*>()->text(), "A\u00C9.gif");
    static_cast<QDialog*>(dialog)->accept();
  });
  const forms_layer::save_answer answer =
      screen.ask_save_path({"Save", "A\xC9", {{"Sheet", "-sheet.png"}, {"Motion", ".gif"}}});
  EXPECT_EQ(answer.path, folder / "A\u00C9.gif");
  EXPECT_EQ(answer.kind, 1U);
}

TEST_F(Input, AWriteRestartsATimer) {
  constexpr int interval = 700;  // in ms; also under load far longer than the time between writes
  form.timer.Timer = [&] { log += "tick ", form.timer.Enabled = false; };
  form.timer.Interval = interval;
  QElapsedTimer running;
  running.start();
  while (!running.hasExpired(interval + 100)) {
    write([&] { form.timer.Enabled = true; });
    QTest::qWait(10);
  }
  EXPECT_EQ(log, "");
  EXPECT_TRUE(QTest::qWaitFor([&] { return log == "tick "; }, 60'000));
}

TEST_F(Input, MenusUseTheToolsFontAndUnderlineLettersWithAlt) {
  QFont large;
  large.setPixelSize(40);
  QApplication::setFont(large, "QMenu");
  auto* bar = window.findChild<QMenuBar*>();
  EXPECT_EQ(bar->actions()[0]->menu()->font().pixelSize(), desktop::font_for({}).pixelSize());
  QApplication::setFont(QFont());
  const QImage before = picture_of(*bar);
  paint_watch watch(bar);
  QTest::keyPress(window.windowHandle(), Qt::Key_Alt, Qt::AltModifier);
  QCoreApplication::processEvents();
  EXPECT_FALSE(watch.painted.isEmpty());
  EXPECT_NE(picture_of(*bar), before);
  QTest::keyRelease(window.windowHandle(), Qt::Key_Alt);
}

// Everything has a name that is not its tool tip, and no markup; pictures are there too.
TEST_F(Desktop, AScreenReaderHearsEveryControlAndPicture) {
  using namespace ostrane;
  reset_forms();
  Form1.s16_image.Load(1);
  int opened = 0;
  Form1.s16_image.DblClick = [&](int i) { opened = i; };
  write([] { Form1.s16_image(1).Width = 510, Form1.s16_image(1).Visible = true; });
  const auto heard = [](QWidget* widget, QAccessible::Text kind) {
    return QAccessible::queryAccessibleInterface(widget)->text(kind).toStdString();
  };
  forms_layer::form* const forms[] = {&Form1, &Form2, &Form3, &Form4, &Form5, &Form6};
  for (forms_layer::form* one : forms) {
    QWidget& window = show(*one);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->role(), QAccessible::Window);
    for (QWidget* widget : window.findChildren<QWidget*>()) {
      const auto* view = dynamic_cast<desktop::control_view*>(widget);
      if (view == nullptr || &view->control == &Form3.message) continue;
      const forms_layer::design& designed = view->control.designed;
      EXPECT_NE(heard(widget, QAccessible::Name), "") << designed.name;
      EXPECT_NE(heard(widget, QAccessible::Name), designed.tool_tip);
      EXPECT_EQ(heard(widget, QAccessible::Description), designed.tool_tip);
    }
  }
  QWidget& window = *screen.window_of(Form1);
  EXPECT_EQ(heard(widget_of(window, Form1.List1), QAccessible::Name), "Entries");
  QWidget* canvas = widget_of(window, Form1.Command5)->parentWidget();
  QAccessibleInterface* pictures = QAccessible::queryAccessibleInterface(canvas);
  QAccessibleInterface* last = pictures->child(pictures->childCount() - 1);
  EXPECT_EQ(last->text(QAccessible::Name), "Picture 1, 32 by 4");
  EXPECT_EQ(last->rect().topLeft(), canvas->mapToGlobal(QPoint(16, 56)));
  for (const bool covered : {true, false}) {
    write([&] { Form1.Text6.Visible = covered; });
    const QPoint inside = last->rect().topLeft() + QPoint(1, 1);
    EXPECT_EQ(pictures->childAt(inside.x(), inside.y()) == last, !covered);
  }
  last->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(opened, 1);
}
