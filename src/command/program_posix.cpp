#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "command/program.h"

namespace ostrane::command {

namespace fs = std::filesystem;

std::vector<std::string> arguments_of(int argc, char** argv) {
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

fs::path path_of_argument(const std::string& argument) { return argument; }

bool stderr_is_terminal() { return isatty(STDERR_FILENO) == 1; }

void set_binary_output() {}

int open_standard_output() {
  const int copy = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
  return copy < 0 ? -errno : copy;
}

}  // namespace ostrane::command
