#include <QApplication>
#include <clocale>
#include <filesystem>

#include "desktop/desktop_style.h"
#include "desktop/look.h"
#include "desktop/qt_screen.h"
#include "platform/paths.h"
#include "state/start_up.h"

namespace {

std::string program_folder() {
  return platform::tool_path(
      std::filesystem::path(QCoreApplication::applicationDirPath().toStdString()));
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  // Qt takes the user's locale for the whole process; numbers of the tool have their own form.
  std::setlocale(LC_NUMERIC, "C");
  QApplication::setStyle(new desktop::desktop_style);
  QApplication::setFont(desktop::font_for({}));
  QApplication::setQuitOnLastWindowClosed(false);
  desktop::qt_screen screen;
  platform::attach_screen(&screen);
  ostrane::begin_tool(program_folder());
  const int outcome = QApplication::exec();
  platform::attach_screen(nullptr);
  return outcome;
}
