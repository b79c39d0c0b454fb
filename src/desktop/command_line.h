#pragma once

#include <filesystem>

namespace desktop {

// The path in the only argument, relative to the working folder. `given` is that of main(). Call
// with an application.
std::filesystem::path path_argument(const char* given);

// Handles all other command lines, without a display: --help and --version print to the standard
// output, the rest print an error. Returns the exit status.
int answer_command_line(int argc, char** argv);

}  // namespace desktop
