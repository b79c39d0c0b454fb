#include "desktop/program_folder.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace desktop {

std::filesystem::path program_folder() {
  const QFileInfo program(QCoreApplication::applicationFilePath());
  return QFileInfo(program.canonicalFilePath()).absolutePath().toStdU16String();
}

}  // namespace desktop
