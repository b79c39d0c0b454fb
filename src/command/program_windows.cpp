#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <cerrno>
#include <cstdio>  // _fileno

#include <shellapi.h>

#include "command/program.h"
#include "files/code_page.h"
#include "files/last_error.h"

namespace ostrane::command {

namespace fs = std::filesystem;

std::vector<std::string> arguments_of(int /*argc*/, char** /*argv*/) {
  int count = 0;
  wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) {
    arguments.push_back(files::as_bytes(fs::path(wide[i]).u8string()));
  }
  LocalFree(wide);
  return arguments;
}

fs::path path_of_argument(const std::string& argument) { return files::as_utf8(argument); }

bool stderr_is_terminal() { return _isatty(2) != 0; }

void set_up_standard_streams() {
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stdin), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

int open_standard_output() {
  const HANDLE self = GetCurrentProcess();
  HANDLE copy = nullptr;
  const BOOL done = DuplicateHandle(self, GetStdHandle(STD_OUTPUT_HANDLE), self, &copy, 0, FALSE,
                                    DUPLICATE_SAME_ACCESS);
  return done == 0 ? files::last_error() : static_cast<int>(reinterpret_cast<std::intptr_t>(copy));
}

// No path leads to it.
bool is_standard_output(const fs::path& /*path*/) { return false; }

int open_pipe(const fs::path& path) {
  const HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  return file == INVALID_HANDLE_VALUE ? files::last_error()
                                      : static_cast<int>(reinterpret_cast<std::intptr_t>(file));
}

int read_input(std::span<std::byte> to) {
  const int count = _read(0, to.data(), static_cast<unsigned>(to.size()));
  return count < 0 ? -errno : count;
}

}  // namespace ostrane::command
