#include "desktop_fixture.h"

#include <QTemporaryDir>
#include <fstream>

#include "desktop/application_setup.h"
#include "handlers/file_service.h"

Desktop::Desktop() {
  QTemporaryDir made;
  made.setAutoRemove(false);
  folder = made.path().toStdString();
  create_directories(folder / "sub");
  std::ofstream(folder / "a.txt") << "a";
  forms_layer::begin_process();
  files::set_drives({{'C', "one", folder}, {'D', "two", folder / "sub"}}, "C:\\");
  ostrane::connect_file_service();
  forms_layer::attach_screen(&screen);
  for (int i = 1; i <= 5; ++i) form.pictures.Load(i);
  picture().Width = 75;
  picture().BackColor = forms_layer::rgb(9, 8, 7);
}

Desktop::~Desktop() {
  forms_layer::attach_screen(nullptr);
  files::set_drives({});
  remove_all(folder);
}

void Desktop::write(const std::function<void()>& handler) {
  forms_layer::run_event(handler);
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

QWidget& Desktop::show(forms_layer::form& shown) {
  write([&] { shown.Visible = true; });
  QWidget& window = *screen.window_of(shown);
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  QCoreApplication::processEvents();
  return window;
}

QWidget& Desktop::show_active() {
  QWidget& window = show(form);
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  return window;
}

QWidget* widget_of(const QWidget& window, const forms_layer::control& shown) {
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const auto* view = dynamic_cast<desktop::control_view*>(widget);
    if (view != nullptr && &view->control == &shown) return widget;
  }
  return nullptr;
}

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const desktop::application application(argc, argv);
  QApplication::setCursorFlashTime(0);
  desktop::set_up_application();
  return RUN_ALL_TESTS();
}
