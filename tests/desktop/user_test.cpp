// What the user does reaches the tool, also by keyboard and through a screen reader.
#include "desktop/designed_look.h"
#include "desktop_fixture.h"

struct Input : Desktop {
  Input() { canvas->setObjectName("pictures"); }
  using steps = std::vector<std::pair<const char*, std::string>>;
  std::string log;
  const std::function<std::string()> logged = [this] { return std::exchange(log, ""); };
  QWidget& window = show_active();
  QWidget* canvas = canvas_of(window, form);
};

TEST_F(Input, ReachesTheTool) {
  for (int i = 0; i < 9; ++i) form.list.AddItem("row " + std::to_string(i));
  form.list.Click = [&] { log += "click" + std::to_string(form.list.ListIndex()) + " "; };
  form.list.DblClick = [&] { log += "double" + std::to_string(form.list.ListIndex()) + " "; };
  form.button.Click = [&] { log += "go "; };
  form.button.ShiftClick = [&] { log += "loop "; };
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
                          {"list#1 press; list#1 press", "click1 click1 "},
                          {"list#0 again", "double1 "},  // scrolled under the mouse
                          {"list#1 press; list#1 right-again", "click1 "},
                          {"button press; list#2 again", "go click2 "},
                          {"list Ctrl+Space", ""},
                          {"list Down; list End; list Down; list Return", "click3 click8 "},
                          {"folders#1 press; F5; folders#1 again", ""},  // of another list
                          {"folders#1 press", ""},
                          {"folders Enter", "C:\\sub "},
                          {"folders#0 press; folders#0 again", "C:\\ "},
                          {"files#0 press", "a.txt "},
                          {"drives wheel; drives wheel-back", ""},
                          {"drives Down", "d: [two] "}};
  const steps of_controls = {{"button Return; button hold Return; button Space", "go go "},
                             {"button Shift+Space; button Shift+press", "loop loop "},
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
  for (const steps& all : {of_lists, of_controls, of_pictures}) play(window, logged, all);
  auto* list = static_cast<QListView*>(widget_of(window, form.list));
  QLabel* label = window.findChild<QLabel*>("label");
  QTest::mousePress(label, Qt::LeftButton);
  QTest::mouseRelease(label, Qt::LeftButton, {}, {-5, 5});
  EXPECT_EQ(log, "") << "let go beside it";
  auto* folders = static_cast<QListView*>(widget_of(window, form.folders));
  ostrane::write_bytes(folder / "b.txt", "b");
  for (const char* name : {"s1", "s2", "s3", "s4"}) create_directory(folder / name);
  act(window, "F5");
  EXPECT_EQ(form.files.ListCount(), 2);
  EXPECT_EQ(window.findChild<QComboBox*>()->count(), 2);
  EXPECT_TRUE(folders->selectionModel()->hasSelection());
  act(window, "field focus");
  answers menus;
  act(window, "field right");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !menus.log.empty(); }, 60'000));
  EXPECT_EQ(log, "") << "a menu takes the focus for a while";
  auto* bar = window.findChild<QMenuBar*>();
  window.resize(450, 440 + bar->height());
  QApplication::setActiveWindow(nullptr), QApplication::setActiveWindow(&window);
  window.close();
  EXPECT_EQ(log, "6750x6600 close ");
  act(window, "list focus");
  log.clear();
  form.Enabled = false;
  play(window, logged,
       {{"list#0 press; list Up; button press; label press; field 9", ""}, {"Tab", ""}});
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
  EXPECT_EQ(folders->sizeHintForColumn(0), needed(folders, "sub") + icon + 8 + 2 * 6)
      << "one step and the margins";
  act(window, "page press; Tab");
  EXPECT_FALSE(widget_of(window, form.page)->hasFocus());
}

TEST_F(Input, KeysReachEveryVisiblePicture) {
  std::string opened;
  form.pictures.DblClick = [&](int i) { opened += std::to_string(i); };
  const QPoint positions[] = {{300, 900}, {600, 900}, {0, 0}, {900, 900}, {300, 1200}, {840, 1200}};
  for (int i = 0; i <= 5; ++i) {
    form.pictures(i).Move(positions[i].x(), positions[i].y());
    form.pictures(i).Visible = i != 2;
  }
  form.pictures(1).Height = 200;  // rows are told by their tops
  QCoreApplication::processEvents();
  const auto has_cursor = [&] {  // around the first picture
    const QImage seen = picture_of(*canvas);
    const QColor frame = canvas->palette().highlight().color();
    return seen.pixelColor(19, 59) == frame && seen.pixelColor(20, 60) == frame;
  };
  paint_watch watch(canvas);
  const auto painted = [&] {  // around which pictures
    std::string all;
    for (int i = 0; i <= 5; ++i) {
      const QPoint outside = desktop::rect_of(form.pictures(i)).topLeft() - QPoint(1, 1);
      if (watch.painted.contains(outside)) all += std::to_string(i);
    }
    watch.painted = {};
    return all;
  };
  act(window, "inner focus");
  painted();
  play(window, painted, {{"pictures focus", "0"}, {"Right", "01"}, {"inner focus", "1"}});
  canvas->setFocus();
  for (const bool visible : {false, true}) {
    painted();
    write([&] { form.pictures(1).Visible = visible; });
    EXPECT_EQ(painted(), "1");
  }
  act(window, "Home");
  EXPECT_TRUE(has_cursor());
  const auto reached = [&] { return std::exchange(opened, ""); };
  play(window, reached,
       {{"Right; Space; Right; Return; Right; Enter", "134"},
        {"Down; Space; End; Space; Up; Space; Up; Space", "4533"},
        {"Left; Space; Left; Space; Left; Space", "100"},
        {"Down; Space; Home; Space; Right; Right; Down; Space", "405"}});
  write([&] { form.pictures(0).Visible = false, form.pictures(5).Visible = false; });
  play(window, reached, {{"Right; Space", "1"}, {"inner focus", ""}});
  EXPECT_FALSE(has_cursor());
  write([&] { form.pictures(1).Visible = false; });
  canvas->setFocus();
  QTest::keyClick(canvas, Qt::Key_Space);
  EXPECT_EQ(opened, "3") << "the first that is visible";
  for (int i = 0; i <= 5; ++i) form.pictures(i).Visible = false;
  QCoreApplication::processEvents();
  EXPECT_FALSE(has_cursor());
}

// A menu opens for the item under the mouse, or by key for the selected one. No timer tick runs
// while it is open.
TEST_F(Input, ContextMenusOpenByMouseAndKey) {
  for (int i = 0; i < 9; ++i) form.list.AddItem("row");
  form.list.ContextMenu = form.pictures.ContextMenu = &form.context;
  form.pictures.DblClick = [](int) {};
  form.pick.Click = [&] { log += "picked ", form.timer.Enabled = false; };
  form.grey.Enabled = false;
  form.context.OpensOn = [](int) { return true; };
  form.context.Popup = [&](int index) { log += std::to_string(index) + " "; };
  form.timer.Timer = [&] { log += "tick "; };
  form.timer.Interval = 1;
  write([&] { picture().Visible = true, form.pictures(2).Visible = true; });
  write([&] { form.pictures(2).Move(900, 900), form.list.ListIndex = 8; });
  answers menus;
  menus.on_open = [&](QWidget& menu) {
    form.timer.Enabled = true;
    QTest::qWait(20);
    const bool is_active = static_cast<QMenu&>(menu).activeAction() == menu.actions()[1];
    const QPoint at = canvas->mapFromGlobal(menu.pos());
    log += std::to_string(at.x()) + "," + std::to_string(at.y());
    log += is_active ? " active " : " ";
    menus.keys = is_active ? "Return" : "P";
  };
  play(window, logged,
       {{"list wheel; list wheel; list wheel; list@9@20 right", "2 -191,140 picked "},
        {"list focus; Shift+F10", "8 -158,140 active picked "},
        {"pictures@61@61 right", "2 61,61 picked "},
        {"pictures focus; Shift+F10", "1 18,58 active picked "},
        {"inner focus; Shift+F10", ""},
        {"pictures@5@150 right", ""}});
}

// Each dialog opens in the folder that the latest one chose.
TEST_F(Input, DialogsAskForFilesAndFolders) {
  const auto folder_of = [&](const char* name) {
    return QString::fromStdString((folder / name).lexically_normal().generic_string());
  };
  answers dialogs;
  const auto answer_with = [&](const std::function<void(QFileDialog&, QLineEdit & name)>& done) {
    dialogs.on_open = [this, done](QWidget& opened) {
      auto& dialog = static_cast<QFileDialog&>(opened);
      log += "in " + dialog.directory().dirName().toStdString() + " ";
      done(dialog, *dialog.findChild<QLineEdit*>());
      if (dialog.isVisible()) static_cast<QDialog&>(dialog).accept();
    };
  };
  // The latest folder, the title, the proposed name and the answer.
  const auto ask = [&](const auto& done) {
    answer_with(done);
    const forms_layer::save_answer answer =
        screen.ask_save_path({"Save", "A\xC9", {{"Sheet", "-sheet.png"}, {"Motion", ".gif"}}});
    return std::exchange(log, "") + dialogs.take() + " " +
           answer.path.lexically_relative(folder).generic_string() + std::to_string(answer.kind);
  };
  const auto choose_motion = [&](QFileDialog& dialog, QLineEdit& name) {
    dialog.setDirectory(folder_of("sub"));
    auto* kinds = dialog.findChild<QComboBox*>("fileTypeCombo");
    kinds->setCurrentIndex(1);
    emit kinds->activated(1), emit kinds->textActivated(kinds->currentText());
    EXPECT_EQ(name.text(), "A\u00C9.gif");
    name.setText("c\u00C9");
  };
  const auto name_only = [](auto&, QLineEdit& name) { name.setText("b"); };
  const auto leave = [&](QFileDialog& dialog, auto&) {
    dialog.setDirectory(folder_of("")), dialog.reject();
  };
  const std::string proposed = "Save: A\u00C9-sheet.png ";
  const std::string first = ask(choose_motion);
  EXPECT_EQ(first.substr(first.find("Save")), proposed + "sub/c\u00C9.gif1");
  EXPECT_EQ(ask(name_only), "in sub " + proposed + "sub/b.png0") << "the kind gives the ending";
  EXPECT_EQ(ask(leave), "in sub " + proposed + "0");
  create_directories(folder / "sub" / "inner");
  answer_with([](auto&, QLineEdit& name) { name.setText("inner"); });
  EXPECT_EQ(screen.ask_folder("Folder"), folder / "sub" / "inner");
  EXPECT_EQ(log + dialogs.take(), "in sub Folder: ") << "the latest one was left";
  log.clear();
  EXPECT_EQ(ask(leave), "in inner " + proposed + "0");
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
  for (const char* kind : {"QMenu", "QMessageBox", "QLabel", "QListView"})
    QApplication::setFont(large, kind);
  EXPECT_EQ(picture_of(window), as_designed);
  const auto as_ever = [](const QWidget& shown) {
    EXPECT_EQ(shown.font().pixelSize(), desktop::font_for({}).pixelSize());
  };
  as_ever(*bar->actions()[0]->menu());
  answers boxes;
  boxes.on_open = as_ever;
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
  std::string opened;
  Form1.s16_image.DblClick = [&](int i) { opened += "picture" + std::to_string(i); };
  for (int i = 1; i <= 2; ++i) Form1.s16_image.Load(i);
  write([] {
    Form1.s16_image(1).Width = 510;
    Form1.s16_image(2).Move(1500, 840);
    Form1.s16_image(1).Visible = true, Form1.s16_image(2).Visible = true;
  });
  const auto heard = [](QWidget* widget, QAccessible::Text kind) {
    return QAccessible::queryAccessibleInterface(widget)->text(kind).toStdString();
  };
  for (auto* one :
       std::initializer_list<forms_layer::form*>{&Form1, &Form2, &Form3, &Form4, &Form5, &Form6}) {
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
  QAccessibleInterface& inside = *QAccessible::queryAccessibleInterface(canvas);
  // What is said of both pictures.
  const auto said = [&] {
    QString text;
    for (const int from_end : {2, 1}) {
      const int index = inside.childCount() - from_end;
      QAccessibleInterface& one = *inside.child(index);
      EXPECT_EQ(inside.indexOfChild(&one), index);
      EXPECT_EQ(one.text(QAccessible::Description), icon_tool_tip);
      const QPoint middle = one.rect().center();
      QDebug(&text).noquote() << one.role() << one.text(QAccessible::Name)
                              << one.rect().translated(-canvas->mapToGlobal(QPoint()))
                              << one.actionInterface()->actionNames();
      if (!one.state().focusable) text += "takes no focus ";
      if (one.state().focused) text += "focused ";
      if (inside.focusChild() == &one) text += "has focus ";
      if (one.state().invisible) text += "invisible ";
      if (inside.childAt(middle.x(), middle.y()) == &one) text += "uncovered ";
      text += "|";
    }
    return text.toStdString();
  };
  const std::string does = " QList(Press, ShowMenu) ";
  const std::string first = "QAccessible::Graphic Picture 1, 32 by 4 QRect(16,56 34x6)" + does;
  const std::string second = "QAccessible::Graphic Picture 2, 4 by 4 QRect(100,56 6x6)" + does;
  activate(window);
  canvas->setFocus();
  EXPECT_EQ(said(), first + "focused has focus |" + second + "|");
  widget_of(window, Form1.List1)->setFocus();
  EXPECT_EQ(said(), first + "|" + second + "|");
  write([] { Form1.Text6.Visible = false, Form1.s16_image(2).Visible = false; });
  EXPECT_EQ(said(), first + "uncovered |QAccessible::Graphic Picture 2, 4 by 4 QRect(0,0 0x0)" +
                        does + "invisible |");
  write([] { Form1.s16_image(2).Move(450, 840), Form1.s16_image(2).Visible = true; });
  EXPECT_EQ(said(), first + "|QAccessible::Graphic Picture 2, 4 by 4 QRect(30,56 6x6)" + does +
                        "uncovered |");
  QAccessibleActionInterface& actions = *inside.child(inside.childCount() - 2)->actionInterface();
  actions.doAction(QAccessibleActionInterface::pressAction());
  Form1.s16_image.ContextMenu = &Form1.mnu_picture;
  Form1.mnu_picture.OpensOn = [&](int i) {
    return (opened += " menu" + std::to_string(i)).empty();
  };
  actions.doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_EQ(opened, "picture1 menu1");
}
