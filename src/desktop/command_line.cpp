#include "desktop/command_line.h"

#include <QCoreApplication>
#include <algorithm>
#include <iostream>
#include <string_view>

#include "desktop/program_folder.h"
#include "state/version.h"

namespace desktop {

namespace {

void tell_version() { std::cout << "Ostrane.dat-tool " << ostrane::version << '\n'; }

void tell_help() {
  std::cout << "Usage: ostrane-dat-tool\n\n"
               "Lists, shows, extracts, builds and compares what the data archive ostrane.dat\n"
               "holds. Everything is done in its windows.\n\n"
               "  --help     tells this and ends\n"
               "  --version  tells the version and ends\n\n"
               "Descriptions of entries, if there are any:\n  "
            << (program_folder() / "iconlist.csv").string() << '\n';
}

}  // namespace

bool answer_command_line(int argc, char** argv) {
  const auto has = [argc, argv](std::string_view wanted) {
    return std::find(argv + 1, argv + std::max(argc, 1), wanted) != argv + std::max(argc, 1);
  };
  if (has("--version")) {
    tell_version();
  } else if (has("--help")) {
    const QCoreApplication application(argc, argv);
    tell_help();
  } else {
    return false;
  }
  return true;
}

}  // namespace desktop
