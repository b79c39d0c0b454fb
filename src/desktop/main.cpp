#include <QIcon>
#include <cstdlib>
#include <iostream>

#include "desktop/application_setup.h"
#include "desktop/command_line.h"
#include "desktop/qt_screen.h"
#include "desktop/system_start.h"
#include "files/paths.h"
#include "files/program_folder.h"
#include "handlers/start_up.h"
#include "pictures/icon_exporter.h"

namespace {

// Some desktops take the icon from the window, others from the desktop entry of this name.
void set_program_icon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 128}) {
    icon.addFile(QStringLiteral(":/icons/ostrane-dat-tool-%1.png").arg(size));
  }
  QApplication::setWindowIcon(icon);
  QGuiApplication::setDesktopFileName(QStringLiteral("ostrane-dat-tool"));
}

// Qt aborts with a core dump if it cannot open a display. That is the only fatal message before the
// windows exist. Warnings go to the standard error.
void handle_early_message(QtMsgType type, const QMessageLogContext& /*context*/,
                          const QString& text) {
  if (type == QtFatalMsg) {
    desktop::show_start_error(desktop::no_display_reason(text.toStdString()));
    std::_Exit(1);
  }
  if (type != QtDebugMsg && type != QtInfoMsg) std::cerr << text.toStdString() << '\n';
}

}  // namespace

int main(int argc, char** argv) {
  desktop::prepare_start();
  const bool opens_archive = argc == 2 && *argv[1] != '-' && *argv[1] != '\0';
  if (argc > 1 && !opens_archive) return desktop::answer_command_line(argc, argv);
  const QtMessageHandler usual = qInstallMessageHandler(handle_early_message);
  const desktop::application application(argc, argv);
  qInstallMessageHandler(usual);
  desktop::set_up_application();
  set_program_icon();
  desktop::qt_screen screen;
  forms_layer::attach_screen(&screen);
  ostrane::start_tool(files::program_folder(), ostrane::make_icon_exporter(),
                      opens_archive ? desktop::path_argument(argv[1]) : std::filesystem::path());
  const int exit_code = QApplication::exec();
  forms_layer::attach_screen(nullptr);
  return exit_code;
}
