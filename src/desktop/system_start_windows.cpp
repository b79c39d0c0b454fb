#include <windows.h>

#include <clocale>

#include <QString>
#include <QtGlobal>

#include "desktop/system_start.h"

namespace desktop {

// Qt uses the dark colours of the system only if it is told to.
void prepare_start() {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
  }
}

void restore_locale() { std::setlocale(LC_NUMERIC, "C"); }

// The program has no console. Only a script gives it a file for errors.
void show_start_error(const std::string& text) {
  const std::string line = "ostrane-dat-tool: " + text + "\n";
  const HANDLE errors = GetStdHandle(STD_ERROR_HANDLE);
  DWORD written = 0;
  if (errors != nullptr && errors != INVALID_HANDLE_VALUE &&
      WriteFile(errors, line.data(), static_cast<DWORD>(line.size()), &written, nullptr) != 0) {
    return;
  }
  MessageBoxW(nullptr, QString::fromStdString(text).toStdWString().c_str(), L"Ostrane.dat-tool",
              MB_ICONERROR);
}

std::string no_display_reason(const std::string& text) { return text; }

}  // namespace desktop
