// What the user types arrives, in the order and at the place where it was typed.
#include "desktop_fixture.h"

struct Typing : Desktop {
  QWidget& window = show_active();
  QWidget* field = widget_of(window, form.field);
};

// Each key is handled before the next one.
TEST_F(Typing, AFieldWithALimitKeepsItsCursorAndUndo) {
  for (const auto& [typed, text] : {std::pair("'12; Home; Del; '5", "52"),
                                    {"'12; Home; '5", "12"},
                                    {"'1; Ctrl+Z", ""},
                                    {"'12; Home; Del; Ctrl+Z", "12"},
                                    {"'123", "12"}}) {
    write([&] { form.field.Text = ""; });
    act(window, "field focus; " + QString(typed));
    EXPECT_EQ(form.field.Text(), text) << typed;
    EXPECT_EQ(static_cast<QLineEdit*>(field)->text().toStdString(), text) << typed;
  }
}

// What a screen reader sets is an edit, too. The tool cannot store some letters.
TEST_F(Typing, AFieldShowsWhatTheToolHas) {
  auto* edit = static_cast<QLineEdit*>(field);
  write([&] { form.field.Text = "?"; });
  edit->setText("\u0416");
  EXPECT_EQ(edit->text(), "?");
  edit->setText("a\u00C9");
  EXPECT_EQ(form.field.Text(), "a\xC9");
  act(window, "inner focus");
  write([&] { form.field.Text = "C:\\a long path"; });
  EXPECT_EQ(edit->text(), "C:\\a long path");
  EXPECT_EQ(edit->cursorPosition(), 0) << "shows its start";
  act(window, "page focus; 'ac; Left");
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.page.Text() == "ac"; }, 60'000));
  act(window, "'b");  // at the cursor, before the screen shows what the tool has
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.page.Text() == "abc"; }, 60'000));
  auto* file = new QMimeData;
  file->setUrls({QUrl("file:///x")});
  QGuiApplication::clipboard()->setMimeData(file);
  act(window, "Ctrl+V");
  EXPECT_EQ(window.findChild<QPlainTextEdit*>()->toPlainText(), "abc");
}

// As Qt does while a client of the screen reader's interface is connected.
struct delays_keys : QObject {
  delays_keys() { qApp->installEventFilter(this); }
  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !event->spontaneous() || !receiver->isWindowType())
      return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    copies.push_back({receiver, new QKeyEvent(key.type(), key.key(), key.modifiers(), key.text())});
    return true;
  }
  std::vector<std::pair<QObject*, QKeyEvent*>> copies;
};

TEST_F(Typing, KeysKeepTheirTimesWithAScreenReader) {
  for (const char* row : {"ba", "a", "bb", "ab", "bbc"}) form.list.AddItem(row);
  handle_events();
  widget_of(window, form.list)->setFocus();
  const std::tuple<const char*, int, int> cases[] = {{"ab", 0, 3},  {"ab", 130, 2},  {"xa", 130, 1},
                                                     {"bbc", 0, 4}, {"bbbbb", 0, 2}, {"aaa", 0, 1}};
  QApplication::setKeyboardInputInterval(100);
  QTest::keyClick(window.windowHandle(), Qt::Key_X);  // delivered at once
  for (const auto& [word, pause, row] : cases) {
    write([&] { form.list.ListIndex = -1; });
    QTest::qWait(130);
    delays_keys delayed;
    for (const char* c = word; *c != '\0'; ++c) {
      QTest::keyPress(window.windowHandle(), *c);
      QTest::qWait(pause);
    }
    QTest::qWait(130);  // a handler
    for (const auto& [receiver, copy] : delayed.copies) QCoreApplication::postEvent(receiver, copy);
    handle_events();
    EXPECT_EQ(form.list.ListIndex(), row) << word << pause;
  }
  QApplication::setKeyboardInputInterval(-1);
}

TEST_F(Typing, AnAmpersandInACaptionIsNoShortcut) {
  write([&] { form.frame.Caption = "R&M.SHP"; });
  const QImage shown = picture_of(*widget_of(window, form.frame));
  write([&] { form.frame.Caption = "R&&M.SHP", form.inner.Caption = "&M"; });
  EXPECT_NE(picture_of(*widget_of(window, form.frame)), shown);
  field->setFocus();
  for (int i = 0; i < 2; ++i) {  // Qt alternates between widgets with one shortcut
    QTest::keyClick(window.windowHandle(), Qt::Key_M, Qt::AltModifier);
    QWidget* menu = QApplication::activePopupWidget();
    EXPECT_NE(menu, nullptr);
    if (menu != nullptr) menu->close();
  }
}

// Typed during a handler, whose message box opens later.
TEST_F(Typing, KeysOfAJobArriveAfterItsMessageBoxes) {
  form.button.Click = form.keys[0].Pressed = [&] { form.label.Caption = "clicked"; };
  field->setFocus();
  const auto later = [&](const std::function<void()>& input) {
    QMetaObject::invokeMethod(field, input, Qt::QueuedConnection);
  };
  const auto type_later = [&](const char* key) { later([&, key] { act_once(window, key); }); };
  answers boxes;
  const auto show_box = [&] { screen.message_box("Title", "text"); };
  form.Unload = [&] { form.label.Caption = "closed"; };
  write([&] {
    later([&] { window.windowHandle()->close(); });
    const QPoint on_button = widget_of(window, form.button)->mapTo(&window, QPoint(5, 5));
    later([&] { QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, on_button); });
    type_later("F7");
    type_later("F10");
    type_later("'1");
    show_box();
    type_later("'2");
    show_box();
    EXPECT_EQ(form.field.Text(), "");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  });
  handle_events();
  EXPECT_EQ(form.field.Text(), "12");
  EXPECT_EQ(form.label.Caption(), "Label") << "clicks and shortcuts are dropped";
  EXPECT_EQ(boxes.log, "TitleTitle");
  boxes.on_open = [&](auto&) { QTest::keyClick(window.windowHandle(), Qt::Key_Backspace); };
  write(show_box);
  EXPECT_EQ(form.field.Text(), "12") << "typed while the box was open";
}
