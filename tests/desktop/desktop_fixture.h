#pragma once

#include <gtest/gtest.h>

#include "desktop/control_view.h"
#include "desktop/qt_screen.h"
#include "disk.h"
#include "files/drives.h"
#include "forms/forms.h"
#include "forms_layer/application.h"
#include "forms_layer/events.h"
#include "user_steps.h"

namespace fs = std::filesystem;

// A form with each kind of control, on a drive with the folder "sub" and the file "a.txt".
struct all_kinds : forms_layer::form {
  all_kinds() : form({"all_kinds", "All kinds", 6000, 6000, true, true}) {
    keys = {{"F7", "a key", [] {}}};
  }

  forms_layer::list_box list{*this, {.name = "list", .at = {0, 1800, 1500, 600}}};
  forms_layer::label label{*this, {.name = "label", .at = {0, 0, 1500, 300}, .text = "Label"}};
  forms_layer::button button{*this, {.name = "button", .at = {1600, 0, 1000, 300}, .cancel = true}};
  forms_layer::text_box field{*this, {.name = "field", .at = {0, 400, 1500, 300}, .max_length = 2}};
  forms_layer::text_box page{*this,
                             {.name = "page", .at = {0, 800, 1500, 900}, .multi_line = true}};
  forms_layer::progress_bar bar{*this, {.name = "bar", .at = {0, 2800, 1500, 300}}};
  forms_layer::drive_list drives{*this, {.name = "drives", .at = {0, 3200, 1500, 315}}};
  forms_layer::dir_list folders{*this, {.name = "folders", .at = {0, 3600, 1500, 900}}};
  forms_layer::file_list files{*this, {.name = "files", .at = {1600, 3600, 1300, 900}}};
  forms_layer::frame frame{*this, {.name = "frame", .at = {3000, 0, 2900, 2900}, .text = "Frame"}};
  forms_layer::button inner{frame,
                            {.name = "inner", .at = {1500, 1500, 900, 300}, .text = "Inner"}};
  forms_layer::picture_array pictures{
      frame, {.name = "pictures", .at = {240, 840, 100, 100}, .visible = false}};
  forms_layer::menu menu{*this, "menu", "Menu"};
  forms_layer::menu_item first{menu, "first", "First"};
  forms_layer::menu_item line{menu, "line", ""};
  forms_layer::menu_item second{menu, "second", "Second"};
  forms_layer::context_menu context{*this, "context"};
  forms_layer::menu_item grey{context, "grey", "Grey"};
  forms_layer::menu_item pick{context, "pick", "Pick"};
  forms_layer::timer timer{*this, "timer", 400, false};
};

struct Desktop : testing::Test {
  Desktop() {
    ostrane::write_bytes(folder / "a.txt", "a");
    create_directories(folder / "sub");
    forms_layer::begin_process();
    files::override_system({{'C', "one", folder}, {'D', "two", folder / "sub"}}, "C:\\");
    forms_layer::attach_screen(&screen);
    for (int i = 1; i <= 5; ++i) form.pictures.Load(i);
    form.label.BackColor = ostrane::pale_cyan;
    picture().Width = 75;
    picture().BackColor = forms_layer::rgb(9, 8, 7);
  }
  ~Desktop() override {
    forms_layer::attach_screen(nullptr);
    files::override_system({});
    remove_all(folder);
  }

  static void handle_events() {
    for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  }
  // Writes as a handler does, and returns when all of it is on the screen.
  static void write(const std::function<void()>& handler) {
    forms_layer::run_event(handler);
    handle_events();
  }
  QWidget& show(forms_layer::form& shown) {
    write([&] { shown.Visible = true; });
    EXPECT_TRUE(QTest::qWaitForWindowExposed(screen.window_of(shown)));
    handle_events();
    return *screen.window_of(shown);
  }
  // Qt calls the owner of an active window active, too.
  static void expect_active(const QWidget& window) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }, 60'000));
  }
  static QWidget& activate(QWidget& window) {
    window.activateWindow();
    expect_active(window);
    return window;
  }
  QWidget& show_active() { return activate(show(form)); }
  forms_layer::picture_box& picture() { return form.pictures(1); }
  // Takes steps in a window, and compares what is seen after each.
  template <typename Seen>
  static void play(QWidget& window, const Seen& seen,
                   const std::vector<std::pair<const char*, std::string>>& steps) {
    for (const auto& [step, expected] : steps) {
      act(window, step);
      EXPECT_EQ(seen(), expected) << step;
    }
  }

  const fs::path folder = ostrane::make_temporary_folder();  // drive C:
  desktop::qt_screen screen;
  all_kinds form;
};

// Adds up what a widget is asked to paint.
struct paint_watch : QObject {
  explicit paint_watch(QObject* watched) { watched->installEventFilter(this); }
  bool eventFilter(QObject* /*receiver*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
  QRegion painted;
};

inline QWidget* widget_of(const QWidget& window, const forms_layer::control& shown) {
  return window.findChild<QWidget*>(QString::fromLatin1(shown.designed.name));
}
// The one that paints the frame and its pictures.
inline QWidget* canvas_of(const QWidget& window, const all_kinds& form) {
  return widget_of(window, form.inner)->parentWidget();
}

inline QImage picture_of(QWidget& shown) {
  return shown.grab().toImage().convertToFormat(QImage::Format_RGB32);
}
