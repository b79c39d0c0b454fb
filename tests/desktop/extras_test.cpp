// The keys, the search, the enlarged picture, drops and drags of the main window.
#include "main_window_fixture.h"
#include "state/tool_state.h"

TEST_F(Extras, CtrlAndShiftSelectMoreRows) {
  play([&] { return selected(); }, {{"List1#1 press", "1 shows 1"},
                                    {"List1#3 Ctrl+press", "13 shows 1"},
                                    {"List1#1 Shift+press", "123 shows 1"},
                                    {"List1#2 Ctrl+press", "13 shows 1"},
                                    {"List1#2 press", "2 shows 2"},
                                    {"List1#0 press", "0 shows 0"},
                                    {"Shift+Down", "01 shows 0"},
                                    {"Shift+Down", "012 shows 0"},
                                    {"List1#1 press", "1 shows 1"},
                                    {"Ctrl+A", "01234 shows 1"},
                                    {"Down", "2 shows 2"},
                                    {"Shift+PgUp", "012 shows 2"},
                                    {"Ctrl+End; Ctrl+Space", "0124 shows 2"},
                                    {"List1 Shift+A", "0 shows 0"}});
}

// What the bar shows: the hint or the selected text, then the count.
TEST_F(Extras, TheSearchGoesFromHitToHit) {
  act(*window, "Ctrl+F");
  QWidget* bar = window->findChild<QWidget*>("find");
  auto* field = bar->findChild<QLineEdit*>();
  EXPECT_EQ(bar->geometry().bottomLeft(), list->geometry().bottomLeft());
  const auto seen = [&] {
    EXPECT_TRUE(bar->isVisible() ? field->hasFocus() : list->hasFocus());
    const QString hint = field->text().isEmpty() ? field->placeholderText() : field->selectedText();
    const QString shown = hint + "/" + bar->findChild<QLabel*>()->text() + "/ ";
    return (bar->isVisible() ? shown.toStdString() : "") + selected();
  };
  play(seen, {{"Return", "Find//  shows -1"},
              {"'q; Return", "/0/  shows -1"},
              {"Backspace; 'a", "/2/  shows -1"},
              {"Return", "/1 of 2/ 0 shows 0"},
              {"F3", "/2 of 2/ 1 shows 1"},
              {"F3", "/1 of 2/ 0 shows 0"},
              {"Shift+Return", "/2 of 2/ 1 shows 1"},
              {"Esc", "1 shows 1"},
              {"Shift+F3", "0 shows 0"},
              {"Ctrl+F", "a/1 of 2/ 0 shows 0"},
              {"Ctrl+G", "Go to number/of 5/ 0 shows 0"},
              {"'4; Return", "3 shows 3"},
              {"Ctrl+G; '6; Return", "3 shows 3"},
              {"Ctrl+G; '1; Enter", "0 shows 0"},
              {"Ctrl+F", "1/0/ 0 shows 0"}});
}

// The enlarged picture has 40, 60 or 80 pixels.
TEST_F(Extras, OnePictureIsEnlarged) {
  const auto seen = [&] {
    EXPECT_TRUE(zoomed().empty() || canvas->hasFocus());
    return zoomed();
  };
  write([] { Form1.Timer1.Interval = 60000; });
  play(seen,
       {{"List1#2 press; pictures@70@70 wheel", ""},
        {"pictures@70@70 Ctrl+wheel-part; pictures@70@70 Ctrl+wheel-part", ""},
        {"pictures@70@70 Ctrl+wheel-part; pictures@70@70 Ctrl+wheel-part", "120(25,53 124x124)"},
        {"pictures@70@70 Ctrl+wheel", "180(8,53 184x184)"},
        {"pictures@3@3 Ctrl+wheel-back", "120(25,53 124x124)"},
        {"Right", "160(78,53 164x164)"},
        {"Home", "80(8,53 84x84)"},
        {"Ctrl+F; pictures focus; Esc; pictures focus", "80(8,53 84x84)"},
        {"Esc", ""},
        {"Ctrl++", "80(8,53 84x84)"}});
  const auto after = [&](const forms_layer::event& handler, int times = 1) {
    for (; times > 0; --times) write(handler);
    return zoomed();
  };
  EXPECT_EQ(after(Form1.Command5.Click), "80(8,53 84x84)") << "the motion begins";
  EXPECT_EQ(after(Form1.Timer1.Timer), "80(8,53 84x84)");
  EXPECT_EQ(after(Form1.Timer1.Timer), "120(8,53 124x124)");
  EXPECT_EQ(after(Form1.Timer1.Timer, 2), "160(8,53 164x164)");
  act(*window, "pictures Space");
  EXPECT_EQ(ostrane::Form3.Caption(), "Icon-data for picture number:  3, on this screen.");
  write(ostrane::Form3.message.Click);
  EXPECT_EQ(after(Form1.Command3.Click), "120(8,53 124x124)");
  play(seen, {{"Ctrl+-", ""},
              {"Ctrl++; Ctrl++; Ctrl++", "240(8,53 244x244)"},
              {"Ctrl++; Ctrl++", "480(8,53 481x377)"}});
  for (const int i : {1, 2, 3}) write([i] { Form1.s16_image(i).Visible = false; });
  play(seen,
       {{"Ctrl+0", ""}, {"List1#2 press; Ctrl++; Ctrl++; Ctrl++; Ctrl++", "480(8,53 481x377)"}});
  // The third picture is in a second row.
  window->resize(window->width() - 345, window->height() - 190);
  play(seen, {{"pictures@70@70 wheel-back", "480(8,53 136x187)"}});
  auto* area = canvas->findChild<QScrollArea*>("zoom");
  EXPECT_GT(area->verticalScrollBar()->value(), 0);
  play(seen, {{"Ctrl+0; List1#2 press; Tab; Tab; Home; Right; Ctrl++", "120(20,53 124x124)"},
              {"Ctrl+0; End; Ctrl++", "160(8,62 136x178)"}});
  window->resize(window->width(), window->height() - 110);
  play(seen, {{"Ctrl+0; List1#2 press; Tab; Tab; Home; Ctrl++", "80(8,53 98x77)"}});
  const auto pixels = [&] {
    const QImage part = picture_of(*canvas->findChild<QWidget*>("zoom")).copy(2, 2, 3, 1);
    return std::pair(part.pixel(0, 0) == part.pixel(1, 0), part.pixel(1, 0) == part.pixel(2, 0));
  };
  EXPECT_EQ(pixels(), std::pair(true, false));
  paint_watch enlarged(area->widget());
  write([] { Form1.s16_image(1).Cls(), Form1.s16_image(2).Cls(); });
  EXPECT_FALSE(enlarged.painted.isEmpty());
  act(*window, "Right");
  EXPECT_EQ(pixels(), std::pair(true, true)) << "of a blank picture";
}

TEST_F(Extras, MenusShowWhatCanBeDone) {
  EXPECT_EQ(text_of(*window->findChild<QMenuBar*>()),
            "&File{&Open|-|&Exit|}|"
            "&Import/export{&Extract Ostrane.dat Files|&Make Ostrane.dat|}|"
            "&Reports{&Save filelist as \"s16list.txt\"|-|"
            "&Compare current Ostrane.dat with \"s16list.txt\"|}|");
  answers opened;
  const auto seen = [&] { return opened.take(); };
  const std::string view_items =
      "|-|&Zoom{&1 (own size)*|&2 times|&3 times|&4 times|&8 times|}"
      "|&Background{As &designed*|&Chequered|&Black|&White|&Magenta|}|";
  play(seen, {{"List1#1 right", "&Extract this entry\u2026|"},
              {"List1#0 press; List1#1 Ctrl+press; List1#4 Ctrl+press; Shift+F10",
               "&Extract 2 entries\u2026|E&xport 2 entries as pictures\u2026|"},
              {"List1#2 press; pictures@20@60 right",
               "&Copy picture|&Save picture\u2026|S&ave series\u2026" + view_items}});
  ostrane::tool_state.archive_is_open = ostrane::flag_false;
  play(seen, {{"pictures@20@60 right",
               "&Copy picture|&Save picture\u2026!|S&ave series\u2026!" + view_items},
              {"pictures@3@3 right", ""}});
}

TEST_F(Extras, MenusZoomSetTheBackgroundAndTheFontOfAText) {
  act(*window, "List1#2 press");
  answers menus;
  const auto pick = [&](const char* keys, const char* on = "pictures@20@60 right") {
    menus.keys = keys;
    act(*window, on);
  };
  // The colours of two unset pixels.
  const auto shown = [&] {
    const QImage seen = picture_of(*canvas);
    return (seen.pixelColor(23, 78).name() + seen.pixelColor(31, 78).name()).toStdString();
  };
  for (const auto& [keys, colours] : {std::pair("B M", std::string("#ff00ff#ff00ff")),
                                      {"B W", "#ffffff#ffffff"},
                                      {"B C", "#999999#cccccc"},
                                      {"B B", "#000000#000000"},
                                      {"B D", shown()}}) {
    paint_watch watch(canvas);
    pick(keys);
    EXPECT_TRUE(watch.painted.contains(QPoint(140, 140))) << "the other pictures follow";
    EXPECT_EQ(shown(), colours) << keys;
  }
  pick("Z 3", "pictures@70@70 right");
  EXPECT_EQ(zoomed(), "180(8,53 184x184)");
  paint_watch enlarged(canvas->findChild<QScrollArea*>("zoom")->widget());
  pick("B W");
  EXPECT_FALSE(enlarged.painted.isEmpty());
  menus.take();
  pick("B D");
  const QString checked = QString::fromStdString(menus.take());
  EXPECT_TRUE(checked.contains("|&3 times*|") && checked.contains("|&White*|"));
  pick("Z 1");
  EXPECT_EQ(zoomed(), "");
  const QWidget* text = widget_of(*window, Form1.Text6);
  const QFont designed = text->font();
  for (const bool fixed : {true, false}) {
    pick("F", "List1#0 press; Text6@9@9 right");
    EXPECT_EQ(text->font().styleHint() == QFont::TypeWriter, fixed);
  }
  EXPECT_EQ(text->font(), designed);
}

TEST_F(Extras, TabReachesWhatCanBeUsed) {
  const auto tour = [&](const char* key) {
    QStringList names;
    for (act(*window, key); !list->hasFocus() && names.size() < 20; act(*window, key))
      names += window->focusWidget()->objectName();
    if (*key == 'S') std::reverse(names.begin(), names.end());
    return names.join(" ").toStdString();
  };
  for (const auto& [before, expected] :
       {std::pair("Ctrl+L", "Text1 Command3 Text2 Text3 Text4 Command4 Command5 Command6 Text5"),
        {"List1#2 press", "Text1 pictures Text2 Text3 Text4 Command5 Command6 Text5"},
        {"List1#0 press", "Text1 Text2 Text3 Text4 Command5 Command6 Text5 Text6"}}) {
    act(*window, before);
    EXPECT_EQ(tour("Tab"), expected);
    EXPECT_EQ(tour("Shift+Tab"), expected);
  }
}

// What was copied, opened, or read from an archive.
TEST_F(Extras, KeysAct) {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  const auto as_text = [](const QImage& image) {  // its width and two pixels
    return QString::number(image.width()) + image.pixelColor(0, 0).name(QColor::HexArgb) +
           image.pixelColor(1, 0).name(QColor::HexArgb);
  };
  clipboard.clear();
  answers opened;
  const auto seen = [&] {
    const QImage image = clipboard.image();
    const QString copied = image.isNull() ? clipboard.text() : as_text(image);
    clipboard.clear();
    return opened.take() + copied.toStdString();
  };
  opened.keys = "Return";
  const char* only_the_last = "List1#0 press; List1#3 Ctrl+press; List1#0 Ctrl+press; Shift+F10";
  play(seen, {{only_the_last, "&Extract this entry\u2026|Extract this entry: Z.TXT"},
              {"Ctrl+E", "Extract this entry: Z.TXT"},
              {"List1#2 press; Ctrl+C", "PIC.SHP"},
              {"Ctrl+E", "Extract this entry: PIC.SHP"},
              {"Ctrl+L; Tab; Tab; Ctrl+C", "40#ff7c90a4#00000000"},
              {"Right; Ctrl+C", "60#ff7c90a4#00000000"},
              {"Ctrl+S", "Save picture: PIC-0002.png"},
              {"F1", "Ostrane.dat-tool"}});
  act(*window, "Ctrl+L; Tab; Tab; Return");
  EXPECT_TRUE(ostrane::Form3.Visible());
  act(*screen.window_of(ostrane::Form3), "Return");
  EXPECT_FALSE(ostrane::Form3.Visible());
  const auto first = [] { return Form1.List1.List(0) + (ostrane::Form2.Visible() ? "?" : ""); };
  ostrane::write_bytes(folder / "ostrane.dat", ostrane::archive_bytes({{"N.TXT", ""}}));
  play(first, {{"F5", "N.TXT"}});
  for (const auto& [step, row] :
       {std::pair("Esc", ""), {"Ctrl+O", "N.TXT"}, {"Dir1 Return", "N.TXT"}}) {
    write([] { Form1.List1.Clear(); });
    play(first, {{"Ctrl+O", "?"}, {"F5", "?"}});  // the window is disabled
    Desktop::play(*screen.window_of(ostrane::Form2), first, {{step, row}});
  }
  QTimer::singleShot(0, [&] { act(*window, "Ctrl+Q"); });
  QTimer::singleShot(60'000, window, [] { QApplication::exit(1); });
  EXPECT_EQ(QApplication::exec(), 0);
}

// Files are written when another program asks for them after the drop.
TEST_F(Extras, RowsAreDraggedOut) {
  const QPoint start = middle_of(1);
  const auto move_by = [&](int pixels) -> const QDrag* {
    act(*window, "List1#1 press; List1#0 Ctrl+press");
    QTest::mousePress(list->viewport(), Qt::LeftButton, {}, start);
    const QPoint to = start + QPoint(pixels, 0);
    QMouseEvent moved(QEvent::MouseMove, to, list->viewport()->mapToGlobal(to), Qt::NoButton,
                      Qt::LeftButton, {});
    QCoreApplication::sendEvent(list->viewport(), &moved);
    return window->findChild<QDrag*>();
  };
  const auto let_go = [&] { QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, start); };
  EXPECT_EQ(move_by(QApplication::startDragDistance() - 1), nullptr);
  let_go();
  EXPECT_EQ(selected(), "1 shows 1");
  // A press on the shown row may begin a drag: the release shows it again.
  write([] { Form1.Text6.Visible = false; });
  QTest::mousePress(list->viewport(), Qt::LeftButton, {}, start);
  EXPECT_FALSE(Form1.Text6.Visible());
  let_go();
  EXPECT_TRUE(Form1.Text6.Visible());
  const QDrag* drag = move_by(QApplication::startDragDistance());
  ASSERT_NE(drag, nullptr);
  EXPECT_EQ(drag->supportedActions(), Qt::CopyAction);
  const auto files = [&] {
    std::string all;
    for (const QUrl& url : drag->mimeData()->urls()) {
      const std::string path = url.toLocalFile().toStdString();
      all += url.fileName().toStdString() + ":" + ostrane::bytes_of(path) + " ";
    }
    return all;
  };
  EXPECT_EQ(files(), "A.TXT: AB.TXT: ") << "while the button is held";
  let_go();
  EXPECT_EQ(files(), "A.TXT:text AB.TXT:text ");
  EXPECT_EQ(selected(), "01 shows 1");
  answers opened;
  for (const char* message : {"", "disk full"}) {
    screen.drag_files({"x"}, [message](const fs::path&) { return message; });
    let_go();
    for (int i = 0; i < 2; ++i) window->findChildren<QDrag*>().last()->mimeData()->urls();
    handle_events();
    EXPECT_EQ(opened.take(), *message == '\0' ? "" : "Ostrane.dat-tool");
  }
}

TEST_F(Extras, ADropOpensAnArchive) {
  ostrane::write_bytes(folder / "sub" / "ostrane.dat", ostrane::archive_bytes({{"N.TXT", ""}}));
  answers opened;  // a box says what is no archive
  // The first row after the drop, or "" if it is refused.
  const auto drop = [&](const QStringList& names) -> std::string {
    QMimeData data;
    QList<QUrl> urls;
    const QString start = QString::fromStdString(folder.string()) + '/';
    for (const QString& name : names) urls += QUrl::fromLocalFile(start + name);
    data.setUrls(urls);
    const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent over({50, 300}, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    QCoreApplication::sendEvent(window, &over);
    if (!over.isAccepted()) return "";
    QDropEvent dropped({50, 300}, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    QCoreApplication::sendEvent(window, &dropped);
    EXPECT_EQ(over.dropAction() | dropped.dropAction(), Qt::CopyAction) << "a move would remove it";
    handle_events();
    return Form1.List1.List(0);
  };
  EXPECT_EQ(drop({"a.txt"}) + drop({"sub", "ostrane.dat"}), "");
  EXPECT_EQ(drop({"sub"}), "N.TXT");
  EXPECT_EQ(drop({"ostrane.dat"}), "A.TXT");
  write([] { Form1.Enabled = false; });
  EXPECT_EQ(drop({"sub"}), "");
}

// The tip of the list and of its row, and that of a picture.
TEST_F(Extras, ToolTipsTellMore) {
  act(*window, "List1#2 press");
  const auto tip_at = [](QWidget* on, const QPoint& at) {
    QHelpEvent pointed(QEvent::ToolTip, at, on->mapToGlobal(at));
    QCoreApplication::sendEvent(on, &pointed);
    return QToolTip::text().toStdString();
  };
  EXPECT_EQ(tip_at(list->viewport(), middle_of(0)),
            Form1.List1.ToolTipText() + "\nA.TXT: 4 bytes at 89, text");
  EXPECT_EQ(tip_at(canvas, {18, 58}), ostrane::icon_tool_tip);
  EXPECT_TRUE(Qt::mightBeRichText(widget_of(*window, Form1.Text5)->toolTip()))
      << "has several lines";
}
