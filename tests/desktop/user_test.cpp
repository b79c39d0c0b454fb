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
#include <QMessageBox>
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

// As the keyboard repeats a key that is held.
static void hold(QWidget* widget, int key) {
  QKeyEvent repeated(QEvent::KeyPress, key, {}, QString(), true);
  QCoreApplication::sendEvent(widget, &repeated);
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
  form.inner.Click = [&] { log += "inner:" + form.page.Text() + " "; };
  form.label.Click = [&] { log += "label "; };
  form.field.LostFocus = [&] { log += "lost:" + form.field.Text() + " "; };
  form.pictures.DblClick = [&](int i) { log += "picture" + std::to_string(i) + " "; };
  form.first.Click = [&] { log += "first "; };
  form.drives.Change = [&] { log += form.drives.Drive() + " "; };
  form.folders.Change = [&] { log += form.folders.Path() + " "; };
  form.files.Click = [&] { log += form.files.FileName() + " "; };
  form.Unload = [&] { log += "close "; };
  form.Resize = [&] {
    log += std::to_string(form.client_width()) + "x" + std::to_string(form.client_height()) + " ";
  };
  write([&] { picture().Visible = true; });
  QAbstractItemView* list = rows_of(form.list);
  QAbstractItemView* folders = rows_of(form.folders);
  QAbstractItemView* files = rows_of(form.files);
  QWidget* button = widget_of(window, form.button);
  QWidget* field = widget_of(window, form.field);
  QWidget* label = widget_of(window, form.label);
  QWidget* page = widget_of(window, form.page);
  auto* drives = static_cast<QComboBox*>(widget_of(window, form.drives));
  QMenuBar* bar = window.findChild<QMenuBar*>();
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
  const auto right = [](QWidget* on, const QPoint& at, bool again = false) {
    again ? QTest::mouseDClick(on, Qt::RightButton, {}, at)
          : QTest::mouseClick(on, Qt::RightButton, {}, at);
  };
  const auto through_menu = [&] {
    field->setFocus();
    QTest::keyClick(window.windowHandle(), Qt::Key_F10);
    EXPECT_EQ(bar->activeAction(), bar->actions()[0]);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QTest::keyClick(bar, Qt::Key_Escape);
    EXPECT_TRUE(field->hasFocus());
  };
  const auto reloaded = [&] {
    ostrane::write_bytes(folder / "b.txt", "b");
    QTest::keyClick(field, Qt::Key_F5);
    log += std::to_string(form.files.ListCount());
  };
  const auto type_in_page = [&](const char* typed) {
    page->setFocus();
    QTest::keyClicks(page, typed), QTest::keyClick(page, Qt::Key_Return);
  };
  const std::tuple<const char*, std::function<void()>, std::string> cases[] = {
      {"first arrow", [&] { list->setFocus(), QTest::keyClick(list, Qt::Key_Down); }, "click0 "},
      {"right press", [&] { right(list->viewport(), middle_of(list, 1)); }, ""},
      {"press", [&] { press_row(list, 1); }, "click1 "},
      {"press on the selected row", [&] { press_row(list, 1); }, "click1 "},
      {"second press, on another row", [&] { press_row(list, 0, true); }, "double1 "},
      {"second press only", [&] { press(button), press_row(list, 2, true); }, "go click2 "},
      {"Ctrl+Space", [&] { QTest::keyClick(list, Qt::Key_Space, Qt::ControlModifier); }, ""},
      {"arrow", [&] { QTest::keyClick(list, Qt::Key_Down); }, "click3 "},
      {"End", [&] { QTest::keyClick(list, Qt::Key_End); }, "click8 "},
      {"arrow at the end", [&] { QTest::keyClick(list, Qt::Key_Down); }, ""},
      {"second press by the right button",
       [&] { press_row(list, 1), right(list->viewport(), middle_of(list, 1), true); }, "click1 "},
      {"Enter", [&] { QTest::keyClick(button, Qt::Key_Return), hold(button, Qt::Key_Return); },
       "go "},
      {"Space", [&] { QTest::keyClick(button, Qt::Key_Space); }, "go "},
      {"Escape", [&] { QTest::keyClick(field, Qt::Key_Escape); }, "go "},
      {"text before a button", [&] { type_in_page("a"), press(widget_of(window, form.inner)); },
       "inner:a\r\n "},
      {"a label", [&] { press(label), QTest::keyClick(label, Qt::Key_Return); }, "label label "},
      {"Space on it", [&] { QTest::keyClick(label, Qt::Key_Space), hold(label, Qt::Key_Space); },
       "label "},
      {"let go beside it",
       [&] {
         QTest::mousePress(label, Qt::LeftButton),
             QTest::mouseRelease(label, Qt::LeftButton, {}, {-5, 5});
       },
       ""},
      {"right press on it",
       [&] {
         right(label, {5, 5});
       },
       ""},
      {"typing beyond the limit", [&] { field->setFocus(), QTest::keyClicks(field, "123"); }, ""},
      {"F10 and back", through_menu, ""},
      {"another window and back",
       [&] {
         QApplication::setActiveWindow(nullptr);
         QApplication::setActiveWindow(&window);
       },
       ""},
      {"focus elsewhere", [&] { canvas->setFocus(), hold(canvas, Qt::Key_Return); }, "lost:12 "},
      {"double click on a picture",
       [&] { press(canvas, on_picture), press_again(canvas, on_picture); }, "picture1 "},
      {"one begun beside it", [&] { press(canvas, beside), press_again(canvas, on_picture); }, ""},
      {"one that began on another widget",
       [&] { press(canvas, on_picture), press(button), press_again(canvas, on_picture); }, "go "},
      {"right double click", [&] { press(canvas, on_picture), right(canvas, on_picture, true); },
       ""},
      {"wheel",
       [&] {
         turn_wheel(*drives, {5, 5}, -120);
       },
       ""},
      {"drive", [&] { QTest::keyClick(drives, Qt::Key_Down); }, "d: [two] "},
      {"folder", [&] { press_row(folders, 1); }, ""},
      {"Enter on it", [&] { QTest::keyClick(folders, Qt::Key_Enter); }, "C:\\sub "},
      {"double click on it", [&] { press_row(folders, 0), press_row(folders, 0, true); }, "C:\\ "},
      {"file", [&] { press_row(files, 0); }, "a.txt "},
      {"F5", reloaded, "2"},
      {"menu", [&] { bar->actions()[0]->menu()->actions()[0]->trigger(); }, "first "},
      {"size", [&] { window.resize(450, 440 + bar->height()); }, "6750x6600 "},
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
  const std::string wide(50, 'w');
  write([&] {
    form.list.Clear();
    for (int i = 0; i < 9; ++i) form.list.AddItem(wide);
  });
  EXPECT_EQ(list->verticalScrollBar()->value(), 0) << "another list starts at its first row";
  write([&] { form.list.ListIndex = 8; });
  EXPECT_TRUE(list->viewport()->rect().contains(5, middle_of(list, 8).y()));
  EXPECT_GT(list->sizeHintForColumn(0), list->fontMetrics().horizontalAdvance(wide.c_str()));
  const int icon_and_indent = folders->iconSize().width() + 8;
  EXPECT_GT(folders->sizeHintForColumn(0),
            folders->fontMetrics().horizontalAdvance("sub") + icon_and_indent);
  type_in_page("b");
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.page.Text() == "a\r\nb\r\n"; }, 60'000));
  QTest::keyClick(page, Qt::Key_Tab);
  EXPECT_FALSE(page->hasFocus());
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
  const QPoint positions[] = {{300, 900}, {600, 900}, {0, 0}, {900, 900}, {300, 1200}, {840, 1200}};
  for (int i = 0; i <= 5; ++i) {
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
      {Qt::Key_Right, 1}, {Qt::Key_Right, 3}, {Qt::Key_Right, 4}, {Qt::Key_Down, 4},
      {Qt::Key_End, 5},   {Qt::Key_Up, 3},    {Qt::Key_Up, 3},    {Qt::Key_Left, 1},
      {Qt::Key_Left, 0},  {Qt::Key_Left, 0},  {Qt::Key_Down, 4},  {Qt::Key_Home, 0}};
  for (const auto& [key, reached] : steps) {
    opened = -1;
    QTest::keyClick(canvas, key);
    QTest::keyClick(canvas, reached % 2 == 0 ? Qt::Key_Space : Qt::Key_Return);
    EXPECT_EQ(opened, reached) << "by key " << key;
  }
  widget_of(window, form.inner)->setFocus();
  EXPECT_FALSE(has_cursor());
  write([&] { form.pictures(0).Visible = false, form.pictures(5).Visible = false; });
  canvas->setFocus();
  QTest::keyClick(canvas, Qt::Key_Space);
  EXPECT_EQ(opened, 1) << "the first that is visible";
  for (int i = 0; i <= 5; ++i) form.pictures(i).Visible = false;
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

TEST_F(Input, PicturesAreCopied) {
  picture().Width = 60;
  picture().PSet(0, 0, forms_layer::rgb(1, 2, 3));
  screen.copy_picture(picture());
  const QImage copied = QGuiApplication::clipboard()->image();
  EXPECT_EQ(copied.size(), QSize(2, picture().rows()));
  EXPECT_EQ(copied.pixel(0, 0), qRgb(1, 2, 3));
  EXPECT_EQ(qAlpha(copied.pixel(1, 0)), 0);
}

// Each dialog opens in the folder that the latest one chose.
TEST_F(Input, DialogsAskForFilesAndFolders) {
  const auto folder_of = [&](const char* name) {
    return QString::fromStdString((folder / name).lexically_normal().string());
  };
  const auto with_name = [](QFileDialog& dialog) { return dialog.findChild<QLineEdit*>(); };
  const auto choose_kind = [](QFileDialog& dialog, int kind) {
    auto* kinds = dialog.findChild<QComboBox*>("fileTypeCombo");
    kinds->setCurrentIndex(kind);
    emit kinds->activated(kind), emit kinds->textActivated(kinds->currentText());
  };
  using act = std::function<void(QFileDialog&)>;
  const auto ask = [&](const act& done, bool accepts = true) {
    when_open<QFileDialog>([=](QFileDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Save");
      done(dialog);
      accepts ? static_cast<QDialog&>(dialog).accept() : dialog.reject();
    });
  };
  const auto asked_path = [&] {
    const forms_layer::save_answer answer =
        screen.ask_save_path({"Save", "A\xC9", {{"Sheet", "-sheet.png"}, {"Motion", ".gif"}}});
    return answer.path.lexically_relative(folder).string() + std::to_string(answer.kind);
  };
  ask([&](QFileDialog& dialog) {
    dialog.setDirectory(folder_of("sub"));
    EXPECT_EQ(with_name(dialog)->text(), "A\u00C9-sheet.png");
    choose_kind(dialog, 1);
    EXPECT_EQ(with_name(dialog)->text(), "A\u00C9.gif");
  });
  EXPECT_EQ(asked_path(), "sub/A\u00C9.gif1");
  ask([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().path(), folder_of("sub"));
    with_name(dialog)->setText("b");
  });
  EXPECT_EQ(asked_path(), "sub/b.png0") << "the kind gives the ending";
  ask([&](QFileDialog& dialog) { dialog.setDirectory(folder_of(".")); }, false);
  EXPECT_EQ(asked_path(), "0");
  ask([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().path(), folder_of("sub")) << "the latest one was left";
    dialog.setDirectory(folder_of(""));
    with_name(dialog)->setText("sub");
  });
  EXPECT_EQ(screen.ask_folder("Save"), folder / "sub");
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

TEST_F(Input, TheDesktopsFontsChangeNothingAndAltUnderlinesLetters) {
  auto* bar = window.findChild<QMenuBar*>();
  const QImage as_designed = picture_of(window);
  const QFont usual = QApplication::font();
  QFont large;
  large.setPixelSize(40);
  for (const char* kind : {"QMenu", "QMessageBox", "QLabel", "QListView"}) {
    QApplication::setFont(large, kind);
  }
  EXPECT_EQ(picture_of(window), as_designed);
  const auto as_ever = [](const QWidget& shown) {
    EXPECT_EQ(shown.font().pixelSize(), desktop::font_for({}).pixelSize());
  };
  as_ever(*bar->actions()[0]->menu());
  when_open<QMessageBox>([&](QMessageBox& box) { as_ever(box), box.accept(); });
  screen.message_box("Title", "text");
  QApplication::setFont(usual);
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
  EXPECT_EQ(last->text(QAccessible::Description), ostrane::icon_tool_tip);
  EXPECT_EQ(last->rect(), QRect(canvas->mapToGlobal(QPoint(16, 56)), QSize(34, 6)));
  EXPECT_EQ(pictures->indexOfChild(last), pictures->childCount() - 1);
  EXPECT_EQ(pictures->indexOfChild(pictures->child(0)), 0);
  EXPECT_EQ(last->actionInterface()->actionNames().size(), 2);
  activate(window);
  for (const bool has_focus : {true, false}) {
    (has_focus ? canvas : widget_of(window, Form1.List1))->setFocus();
    EXPECT_EQ(last->state().focused, has_focus);
    EXPECT_EQ(pictures->focusChild() == last, has_focus);
  }
  for (const bool covered : {true, false}) {
    write([&] { Form1.Text6.Visible = covered; });
    const QPoint inside = last->rect().topLeft() + QPoint(1, 1);
    EXPECT_EQ(pictures->childAt(inside.x(), inside.y()) == last, !covered);
  }
  last->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(opened, 1);
  Form1.s16_image.ContextMenu = &Form1.mnu_picture;
  Form1.mnu_picture.Popup = [&](int i) { return (opened = 10 * i) == 0; };
  last->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_EQ(opened, 10);
  EXPECT_FALSE(last->state().invisible);
  write([] { Form1.s16_image(1).Visible = false; });
  EXPECT_TRUE(last->state().invisible);
}
