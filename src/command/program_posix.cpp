#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <thread>

#include "command/interruption.h"
#include "command/program.h"

namespace ostrane::command {

namespace fs = std::filesystem;

std::vector<std::string> arguments_of(int argc, char** argv) {
  return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

fs::path path_of_argument(const std::string& argument) { return argument; }

bool stderr_is_terminal() { return isatty(STDERR_FILENO) == 1; }

void set_up_standard_streams() {}

int open_standard_output() {
  const int copy = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
  return copy < 0 ? -errno : copy;
}

bool is_standard_output(const fs::path& path) {
  struct stat output = {};
  struct stat named = {};
  if (fstat(STDOUT_FILENO, &output) < 0 || stat(path.c_str(), &named) < 0) return false;
  return output.st_dev == named.st_dev && output.st_ino == named.st_ino;
}

// A blocking open() of a pipe would not end by a signal.
int open_pipe(const fs::path& path) {
  constexpr auto pause = std::chrono::milliseconds(20);
  for (;;) {
    const int file = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (file >= 0) return fcntl(file, F_SETFL, O_WRONLY) < 0 ? -errno : file;
    std::error_code failed;
    if (errno != ENXIO || !fs::is_fifo(path, failed)) return -errno;
    check_interruption();
    std::this_thread::sleep_for(pause);
  }
}

// poll() ends by a signal, read() does not.
int read_input(std::span<std::byte> to) {
  pollfd input = {.fd = STDIN_FILENO, .events = POLLIN, .revents = 0};
  if (poll(&input, 1, -1) < 0) return -errno;
  const ssize_t count = read(STDIN_FILENO, to.data(), to.size());
  return count < 0 ? -errno : static_cast<int>(count);
}

}  // namespace ostrane::command
