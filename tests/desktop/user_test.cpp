// What the user does reaches the tool, also by keyboard and through a screen reader.
#include "desktop/designed_look.h"
#include "desktop_fixture.h"
#include "files/code_page.h"

struct Input : Desktop {
  Input() { canvas->setObjectName("pictures"); }
  QListView* rows_of(const forms_layer::control& shown) const {
    return window.findChild<QListView*>(QString::fromLatin1(shown.designed.name));
  }
  using steps = std::vector<std::pair<const char*, std::string>>;
  // Compares what the tool logged.
  void play(const steps& all) {
    Desktop::play(
        window, [&] { return std::exchange(log, ""); }, all);
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
  write([&] { picture().Visible = true, form.pictures(3).Visible = true; });
  write([&] { form.pictures(3).Move(300, 840); });  // over the edge of the first
  const steps of_lists = {{"inner focus; list focus; Down", "click0 "},
                          {"list#1 right", ""},
                          {"list#1 press", "click1 "},
                          {"list#1 press", "click1 "},
                          {"list#0 again", "double1 "},  // scrolled under the mouse
                          {"list#1 press; list#1 right-again", "click1 "},
                          {"button press; list#2 again", "go click2 "},
                          {"list Ctrl+Space", ""},
                          {"list Down", "click3 "},
                          {"list End", "click8 "},
                          {"list Down", ""},
                          {"list Return", ""},
                          {"folders#1 press", ""},
                          {"folders Enter", "C:\\sub "},
                          {"folders#0 press; folders#0 again", "C:\\ "},
                          {"files#0 press", "a.txt "},
                          {"drives wheel; drives wheel-back", ""},
                          {"drives Down", "d: [two] "}};
  const steps of_controls = {{"button Return; button hold Return", "go "},
                             {"button Space", "go "},
                             {"field Esc", "go "},
                             {"inner right", ""},
                             {"label press; label Return", "label label "},
                             {"label Space; label hold Space", "label "},
                             {"label right", ""},
                             {"page press; 'a; Return; inner press", "inner:a\r\n "},
                             {"field press; '123", ""},
                             {"F10; Esc; Esc; 'x", ""},  // the menu gives the focus back
                             {"F10; Down; Return", "first "},
                             {"inner press", "lost:12 inner:a\r\n "}};
  const steps of_pictures = {{"pictures@20@58 press; pictures@20@58 again", "picture3 "},
                             {"pictures@18@58 press; pictures@18@58 again", "picture1 "},
                             {"pictures@60@190 press; pictures@18@58 again", ""},
                             {"pictures@18@58 press; button press; pictures@18@58 again", "go "},
                             {"pictures@18@58 press; pictures@18@58 right-again", ""},
                             {"pictures hold Return", ""}};
  play(of_lists), play(of_controls), play(of_pictures);
  QListView* list = rows_of(form.list);
  QLabel* label = window.findChild<QLabel*>("label");
  QTest::mousePress(label, Qt::LeftButton);
  QTest::mouseRelease(label, Qt::LeftButton, {}, {-5, 5});
  EXPECT_EQ(log, "") << "let go beside it";
  QListView* folders = rows_of(form.folders);
  ostrane::write_bytes(folder / "b.txt", "b");
  for (const char* name : {"s1", "s2", "s3", "s4"}) create_directory(folder / name);
  act(window, "F5");
  EXPECT_EQ(form.files.ListCount(), 2);
  EXPECT_EQ(window.findChild<QComboBox*>()->count(), 2);
  EXPECT_TRUE(folders->selectionModel()->hasSelection());
  act(window, "field focus");
  when_open<QMenu>([](QMenu& menu) { menu.close(); });
  act(window, "field right");
  EXPECT_EQ(log, "") << "a menu takes the focus for a while";
  auto* bar = window.findChild<QMenuBar*>();
  window.resize(450, 440 + bar->height());
  QApplication::setActiveWindow(nullptr), QApplication::setActiveWindow(&window);
  window.close();
  EXPECT_EQ(log, "6750x6600 close ");
  act(window, "list focus");
  log.clear();
  form.Enabled = false;
  play({{"list#0 press; list Up; button press; label press; field 9", ""}, {"Tab", ""}});
  window.close();
  form.Enabled = true;
  EXPECT_EQ(log, "");
  EXPECT_TRUE(widget_of(window, form.button)->isEnabled()) << "a disabled form looks as ever";
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
  EXPECT_EQ(list->verticalScrollBar()->value(), list->verticalScrollBar()->maximum());
  const auto needed = [](const QWidget* shown, const char* text) {
    return shown->fontMetrics().horizontalAdvance(text);
  };
  EXPECT_GT(list->sizeHintForColumn(0), needed(list, wide.c_str()));
  const int icon = folders->iconSize().width();
  EXPECT_GT(folders->sizeHintForColumn(0), needed(folders, "sub") + icon + 8);
  EXPECT_LT(folders->sizeHintForColumn(0), needed(folders, "sub") + icon + 24) << "no stairs";
  act(window, "page press; Tab");
  EXPECT_FALSE(widget_of(window, form.page)->hasFocus());
}

TEST_F(Input, KeysReachEveryVisiblePicture) {
  std::string opened;
  form.pictures.DblClick = [&](int i) { opened = std::to_string(i); };
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
  const auto reached = [&] { return std::exchange(opened, "none"); };
  Desktop::play(window, reached,
                {{"Right; Space", "1"},
                 {"Right; Return", "3"},
                 {"Right; Enter", "4"},
                 {"Down; Space", "4"},
                 {"End; Space", "5"},
                 {"Up; Space", "3"},
                 {"Up; Space", "3"},
                 {"Left; Space", "1"},
                 {"Left; Space", "0"},
                 {"Left; Space", "0"},
                 {"Down; Space", "4"},
                 {"Home; Space", "0"}});
  widget_of(window, form.inner)->setFocus();
  EXPECT_FALSE(has_cursor());
  write([&] { form.pictures(0).Visible = false, form.pictures(5).Visible = false; });
  canvas->setFocus();
  QTest::keyClick(canvas, Qt::Key_Space);
  EXPECT_EQ(opened, "1") << "the first that is visible";
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
  form.pick.Click = [&] { log += "picked ", form.timer.Enabled = false; };
  form.context.Popup = [&](int index) {
    log += std::to_string(index) + " ";
    return true;
  };
  form.timer.Timer = [&] { log += "tick "; };
  form.timer.Interval = 1;
  write([&] { picture().Visible = true, form.pictures(2).Visible = true; });
  write([&] { form.pictures(2).Move(900, 900), form.list.ListIndex = 2; });
  answers menus;
  menus.on_open = [&] {
    form.timer.Enabled = true;
    QTest::qWait(20);
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    const bool is_active = menu->activeAction() == menu->actions()[0];
    log += is_active ? "active " : "";
    menus.keys = is_active ? "Return" : "P";
  };
  play({{"list#1 right", "1 picked "},
        {"list focus; Shift+F10", "2 active picked "},
        {"pictures@61@61 right", "2 picked "},
        {"pictures focus; Shift+F10", "1 active picked "},
        {"inner focus; Shift+F10", ""},
        {"pictures@5@150 right", ""}});
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
    return QString::fromStdString((folder / name).lexically_normal().generic_string());
  };
  const auto name_in = [](QFileDialog& dialog) { return dialog.findChild<QLineEdit*>(); };
  const auto ask = [&](const std::function<void(QFileDialog&)>& done) {
    when_open<QFileDialog>([&](QFileDialog& dialog) {
      EXPECT_EQ(dialog.windowTitle(), "Save");
      done(dialog);
      if (dialog.isVisible()) static_cast<QDialog&>(dialog).accept();
    });
    const forms_layer::save_answer answer =
        screen.ask_save_path({"Save", "A\xC9", {{"Sheet", "-sheet.png"}, {"Motion", ".gif"}}});
    return answer.path.lexically_relative(folder).generic_string() + std::to_string(answer.kind);
  };
  const auto choose_motion = [&](QFileDialog& dialog) {
    dialog.setDirectory(folder_of("sub"));
    EXPECT_EQ(name_in(dialog)->text(), "A\u00C9-sheet.png");
    auto* kinds = dialog.findChild<QComboBox*>("fileTypeCombo");
    kinds->setCurrentIndex(1);
    emit kinds->activated(1), emit kinds->textActivated(kinds->currentText());
    EXPECT_EQ(name_in(dialog)->text(), "A\u00C9.gif");
    name_in(dialog)->setText("c\u00C9");
  };
  const auto name_only = [&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().path(), folder_of("sub"));
    name_in(dialog)->setText("b");
  };
  const auto leave = [&](QFileDialog& dialog) {
    dialog.setDirectory(folder_of("")), dialog.reject();
  };
  EXPECT_EQ(ask(choose_motion), "sub/c\u00C9.gif1");
  EXPECT_EQ(ask(name_only), "sub/b.png0") << "the kind gives the ending";
  EXPECT_EQ(ask(leave), "0");
  create_directories(folder / "sub" / "inner");
  when_open<QFileDialog>([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().path(), folder_of("sub")) << "the latest one was left";
    name_in(dialog)->setText("inner");
    static_cast<QDialog&>(dialog).accept();
  });
  EXPECT_EQ(screen.ask_folder("Folder"), folder / "sub" / "inner");
  ask([&](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().path(), folder_of("sub/inner"));
    dialog.reject();
  });
}

TEST_F(Input, AWriteRestartsATimer) {
  constexpr int interval = 700;  // in ms; also under load far longer than the time between writes
  form.timer.Timer = [&] { log += "tick ", form.timer.Enabled = false; };
  form.timer.Interval = 0;
  write([&] { form.timer.Enabled = true; });
  handle_events();
  EXPECT_EQ(log, "");
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
  EXPECT_EQ(last->role(), QAccessible::Graphic);
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
