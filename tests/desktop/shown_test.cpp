// What the tool writes is on the screen.
#include "archive_bytes.h"
#include "data/icon_packer.h"
#include "desktop/designed_look.h"
#include "desktop/picture_painter.h"
#include "desktop_fixture.h"
#include "forms_layer/message_box.h"
#include "forms_layer/user.h"
#include "handlers/start_up.h"

namespace user = forms_layer::user;

TEST_F(Desktop, EveryPropertyChangesThePictureOfItsControl) {
  form.field.Text = "10";
  form.bar.Value = 20;
  QWidget& window = show(form);
  const auto property = [&](const std::string& what, auto& tested,
                            const std::decay_t<decltype(tested())>& value) {
    const auto old = tested();
    const QImage before = picture_of(window);
    paint_watch watch(qApp);
    write([&] { tested = value; });
    EXPECT_FALSE(watch.painted.isEmpty()) << what;
    EXPECT_NE(picture_of(window), before) << what;
    write([&] { tested = old; });
    const bool moves_focus = what == "hidden";
    EXPECT_TRUE(moves_focus || picture_of(window) == before) << what << " back";
  };
  property("label", form.label.Caption, "Other");
  property("a line more", form.label.Caption, "Label\rB");
  write([&] { form.label.Caption = "word word word word A"; });
  property("wrapped", form.label.Caption, "word word word word M");
  write([&] { form.label.Caption = std::string(14, 'w') + "A"; });
  property("wrapped without blanks", form.label.Caption, std::string(14, 'w') + "M");
  property("no markup", form.label.Caption, "Label<b>");
  property("button", form.button.Caption, "Other");
  property("frame", form.frame.Caption, "Other");
  property("field", form.field.Text, "11");
  property("page", form.page.Text, "Line\r\nLine");
  property("bar value", form.bar.Value, 70);
  property("bar max", form.bar.Max, 30);
  property("bar min", form.bar.Min, 10);
  property("drive", form.drives.Drive, "D");
  write([&] { form.list.AddItem("row"), form.list.AddItem("row"), form.field.Text = ""; });
  property("placeholder", form.field.Placeholder, "C:\\");
  property("row", form.list.ListIndex, 1);
  property("file", form.files.ListIndex, 0);
  property("folder", form.folders.Path, "C:\\sub");
  property("files", form.files.Path, "C:\\sub");
  const QImage two_rows = picture_of(window);
  write([&] { form.list.AddItem("row"); });
  EXPECT_NE(picture_of(window), two_rows);
  write([&] { picture().Visible = true; });
  for (forms_layer::control* control : form.controls()) {
    SCOPED_TRACE(control->designed.name);
    property("hidden", control->Visible, false);
    property("moved", control->Left, control->Left() + 75);
    property("lower", control->Height, control->Height() - 75);
    const bool shows_colour = control->kind != forms_layer::control_kind::progress_bar;
    if (shows_colour) property("colour", control->BackColor, forms_layer::rgb(200, 150, 200));
    write([&] { control->Enabled = false, control->ToolTipText = "a <b> tip"; });
    const QWidget* widget = widget_of(window, *control);
    EXPECT_FALSE(widget->isEnabled());
    EXPECT_EQ(widget->toolTip(), "<p style=\"white-space:pre-wrap\">a &lt;b&gt; tip</p>");
  }
  write([&] { form.frame.Width = 1500; });
  write([&] { form.frame.Caption = std::string(99, 'w'); });
  write([&] { form.frame.Width = 2900; });
  const QImage resized = picture_of(window);
  for (const std::size_t w : {1U, 99U}) write([&] { form.frame.Caption = std::string(w, 'w'); });
  EXPECT_EQ(picture_of(window), resized) << "a caption is cut at the new width";
  write([&] { form.Caption = "", form.second.Enabled = false; });
  EXPECT_EQ(window.windowTitle(), " ") << "some systems would show the name of the program";
  write([&] { form.Caption = "Other"; });
  EXPECT_EQ(window.windowTitle(), "Other");
  EXPECT_FALSE(window.findChild<QMenuBar*>()->actions()[0]->menu()->actions()[2]->isEnabled());
}

TEST_F(Desktop, OnlyTheChangedPartOfAPictureIsPainted) {
  QWidget* canvas = canvas_of(show(form), form);
  paint_watch watch(canvas);
  const auto show_diagonal = [&] {  // its ends first
    for (int i = 6; i <= 60; ++i) {
      const int at = i == 7 ? 54 : i - 6;
      form.pictures.Load(i);
      form.pictures(i).Move(30 * at, 30 * at);
      form.pictures(i).Visible = true;
    }
  };
  const std::tuple<const char*, std::function<void()>, QRegion> cases[] = {
      {"shown", [&] { picture().Visible = true; }, QRect(16, 56, 5, 6)},
      {"one pixel", [&] { picture().PSet(1, 2, 5); }, QRect(18, 59, 1, 1)},
      {"cleared", [&] { picture().Cls(); }, QRect(17, 57, 3, 4)},
      {"moved", [&] { picture().Move(1500, 840); }, QRegion(16, 56, 5, 6) + QRect(100, 56, 5, 6)},
      {"moved to and fro", [&] { picture().Move(0, 0), picture().Move(1500, 840); }, QRegion()},
      {"hidden", [&] { picture().Visible = false; }, QRect(100, 56, 5, 6)},
      {"drawn on while hidden", [&] { picture().PSet(1, 1, 5); }, QRegion()},
      {"so many that all is painted", show_diagonal, QRect(0, 0, 114, 114)},
  };
  for (const auto& [what, handler, painted] : cases) {
    watch.painted = {};
    write(handler);
    EXPECT_EQ(watch.painted, painted) << what;
  }
  desktop::set_backdrop(desktop::backdrop::magenta);
  write([&] { form.pictures(4).Visible = true; });
  const QPoint on_swatch = desktop::rect_of(form.pictures(4)).center();
  EXPECT_NE(picture_of(*canvas).pixelColor(on_swatch), Qt::magenta);
  desktop::set_backdrop(desktop::backdrop::designed);
}

TEST_F(Desktop, ATextOfManyLinesHasFewBlocksAndScrollsByLine) {
  std::string text;
  for (int line = 0; line < 50000; ++line) text += std::to_string(line) + "\r\n";
  form.page.Text = text;
  QWidget& window = show(form);
  auto& page = dynamic_cast<QPlainTextEdit&>(*widget_of(window, form.page));
  EXPECT_LT(page.blockCount(), 1000);
  for (const int line : {40000, 30007}) {
    page.verticalScrollBar()->setValue(line);
    QTextCursor at_top = page.cursorForPosition({1, 8});
    at_top.select(QTextCursor::LineUnderCursor);
    EXPECT_EQ(at_top.selectedText().toInt(), line);
    page.resize(page.width() + 50, page.height());
  }
  write([&] { form.page.Text = std::string(10000, 'w'); });
  EXPECT_EQ(page.blockCount(), 3) << "Qt is slow with long lines";
  EXPECT_GT(page.horizontalScrollBar()->maximum(), 0);
}

TEST_F(Desktop, OutOfMemoryDropsOnlyTheEvent) {
  struct failing : QObject {
    bool event(QEvent*) override { throw std::bad_alloc(); }
  } receiver;
  QEvent event(QEvent::User);
  EXPECT_FALSE(QApplication::sendEvent(&receiver, &event));
}

// Input during a handler is handled after it.
TEST_F(Desktop, AHandlerShowsFramesAndLateWindows) {
  using ostrane::Form3;
  using namespace std::chrono_literals;
  ostrane::reset_forms();
  std::string log;
  QWidget& window = show(form);
  auto passed = 0ms;  // since the start of the handler
  screen.now = [&passed] { return forms_layer::handler_began() + passed; };
  form.Unload = [&] { log += "close "; };
  write([&] {
    Form3.Visible = true;
    passed = 99ms;
    Form3.Refresh();
    Form3.Visible = false;
  });
  EXPECT_EQ(screen.window_of(Form3), nullptr) << "of a short handler";
  QTest::qSleep(99);
  passed = 0ms;
  paint_watch watch(widget_of(window, form.label));
  forms_layer::run_event([&] {
    QMetaObject::invokeMethod(
        &window, [&] { window.close(); }, Qt::QueuedConnection);
    Form3.Visible = true;
    // Before the frame is due, when it is, and before the next one.
    for (const auto& [at, paints] : {std::pair(15ms, false), {16ms, true}, {20ms, false}}) {
      passed = at;
      form.label.Caption = std::to_string(at.count());
      form.Refresh();
      EXPECT_EQ(!std::exchange(watch.painted, {}).isEmpty(), paints) << at.count();
    }
    passed = 100ms;
    Form3.ProgressBar1.Value = 1;
    QWidget* late = screen.window_of(Form3);
    ASSERT_TRUE(late != nullptr && late->windowHandle()->isExposed());
    EXPECT_TRUE(late->windowHandle()->flags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_EQ(late->windowHandle()->transientParent(), window.windowHandle());
    paint_watch bar(widget_of(*late, Form3.ProgressBar1));
    passed = 116ms;
    Form3.ProgressBar1.Value = 90;
    EXPECT_FALSE(bar.painted.isEmpty());
    log += "end ";
  });
  handle_events();
  EXPECT_EQ(log, "end close ");
  EXPECT_FALSE(screen.window_of(Form3)->windowHandle()->flags() & Qt::WindowDoesNotAcceptFocus);
}

TEST_F(Desktop, AMessageBoxOpensOverAllChangesAndBlocksOtherEvents) {
  ostrane::reset_forms();
  QWidget& window = show(form);
  std::string log;
  answers boxes;
  form.timer.Timer = [&] { log += "tick "; };
  forms_layer::application.Title = "Title";
  write([&] {
    form.timer.Interval = 1, form.timer.Enabled = true;
    form.label.Caption = "Other";
    ostrane::Form2.Visible = true;
    boxes.on_open = [&](QWidget& opened) {
      const auto& box = static_cast<QMessageBox&>(opened);
      QTest::qWait(20);
      log += (box.windowTitle() + "|" + box.text() + " ").toStdString();
      EXPECT_TRUE(box.width() >= 260 && box.buttons()[0]->icon().isNull());
      EXPECT_EQ(box.textFormat(), Qt::PlainText) << "a name can look like markup";
      EXPECT_TRUE(screen.window_of(ostrane::Form2)->isVisible());
      EXPECT_EQ(widget_of(window, form.label)->property("text"), "Other");
    };
    forms_layer::message_box("one\n\rtwo\rthree");
    form.timer.Enabled = false;
    log += "end";
  });
  EXPECT_EQ(log, "Title|one\ntwo\nthree end");
  activate(window);
  boxes.on_open = [](auto&) {};
  write([] { forms_layer::message_box("text"); });
  expect_active(window);  // below Form2, but it had the focus
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
        const int hint = qGray(used.color(group, QPalette::PlaceholderText).rgb());
        EXPECT_TRUE(std::abs(hint - base) >= 40 && hint != text) << std::hex << back;
      }
    }
    QWidget& window = show(form);  // open when the theme changes
    const auto background_of = [&window](const forms_layer::control& shown) {
      return widget_of(window, shown)->palette().color(QPalette::Window);
    };
    EXPECT_EQ(background_of(form.frame), theme.color(QPalette::Window));
    const auto edge_of = [&window](const forms_layer::control& shown) {
      const QImage seen = picture_of(*widget_of(window, shown));
      return seen.pixel(0, seen.height() / 2);
    };
    const int background = qGray(theme.color(QPalette::Window).rgb());
    EXPECT_GE(std::abs(qGray(edge_of(form.field)) - background), 30);
    EXPECT_GE(std::abs(qGray(edge_of(form.page)) - background), 30);
    EXPECT_EQ(edge_of(form.list), QApplication::palette().color(QPalette::Highlight).rgb())
        << "has the focus";
  }
  QApplication::setPalette(light);
}

// With OSTRANE_RENEW_PICTURES set the pictures are written and not compared. Other versions of Qt
// and its font renderer may differ in a few pixels.
static void expect_picture(QWidget& window, const QString& name) {
  const QString path = QStringLiteral(PICTURES_FOLDER) + name;
  const QImage seen = picture_of(window);
  if (qEnvironmentVariableIsSet("OSTRANE_RENEW_PICTURES")) seen.save(path);
  const QImage kept = QImage(path).convertToFormat(QImage::Format_RGB32);
  ASSERT_EQ(seen.size(), kept.size()) << path.toStdString();
  int different = 0;
  for (int i = 0; i < seen.width() * seen.height(); ++i) {
    const QPoint at(i % seen.width(), i / seen.width());
    if (std::abs(qGray(seen.pixel(at)) - qGray(kept.pixel(at))) > 40) ++different;
  }
  EXPECT_LE(different, 20) << path.toStdString();
  if (different > 20) seen.save(QCoreApplication::applicationDirPath() + "/different_" + name);
}

TEST_F(Desktop, FormsMatchTheGoldenPictures) {
  using namespace ostrane;
  ostrane::picture drawn(40, 30);
  for (int x = 0; x < 30; ++x) drawn.set(x, x, static_cast<std::uint8_t>(8 * x));
  write_bytes(folder / "sub" / "ostrane.dat",
              archive_bytes({{"NOTE.TXT", "text"}, {"PIC.SHP", shp_file({drawn, drawn, drawn})}}));
  start_tool("C:\\");
  QApplication::setActiveWindow(nullptr);
  write([] { user::click(Form1.mnu_open); });
  write([] { user::open_folder(Form2.Dir1, 1); });
  expect_picture(*screen.window_of(Form2), "form2.png");
  write([] { user::click(Form2.Command1); });
  write([] { user::select_row(Form1.List1, 1); });
  expect_picture(*screen.window_of(Form1), "form1.png");
  write([] { user::double_click(Form1.s16_image, 2); });
  write([] {
    for (forms_layer::control* control : Form3.controls()) control->Visible = true;
    Form3.ProgressBar1.Value = 60;
  });
  expect_picture(*screen.window_of(Form3), "form3.png");
}
