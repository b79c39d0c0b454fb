#include "desktop/command_line.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include "desktop/system_start.h"
#include "files/program_folder.h"
#include "version/version.h"

namespace desktop {

namespace {

constexpr int usage_error = 2;

QString description() {
  return QStringLiteral(
             "Lists, shows, extracts, builds and compares the contents of the data archive\n"
             "ostrane.dat in windows.\n\n"
             "Descriptions of entries, if there are any:\n  ") +
         QString::fromStdString((files::program_folder() / "iconlist.csv").string());
}

}  // namespace

// On systems whose paths are bytes, those of main() are exact.
std::filesystem::path path_argument(const char* given) {
  if constexpr (std::filesystem::path::preferred_separator == '/') return given;
  return QCoreApplication::arguments().value(1).toStdU16String();
}

int answer_command_line(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("Ostrane.dat-tool"));
  QCoreApplication::setApplicationVersion(QString::fromLatin1(ostrane::version));
  QCommandLineParser parser;
  parser.setApplicationDescription(description());
  parser.addPositionalArgument(QStringLiteral("path"),
                               QStringLiteral("An ostrane.dat to open, or its folder."),
                               QStringLiteral("[path]"));
  const QString version = QStringLiteral("version");
  parser.addOptions({{QStringLiteral("help"), QStringLiteral("Prints this and exits.")},
                     {version, QStringLiteral("Prints the version and exits.")}});
  QString error;
  if (!parser.parse(QCoreApplication::arguments())) error = parser.errorText();
  const QStringList files = parser.positionalArguments();
  if (error.isEmpty() && !files.isEmpty()) {
    error = QStringLiteral("Only one archive can be opened, without an option: ") + files.last();
  }
  if (error.isEmpty() && parser.isSet(version)) parser.showVersion();
  if (error.isEmpty()) parser.showHelp();
  show_start_error(error.toStdString());
  return usage_error;
}

}  // namespace desktop
