#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "files/file_path.h"

// System-dependent parts of the program.
namespace ostrane::command {

// Returns the arguments without the program's name: UTF-8 on Windows, raw bytes on POSIX.
std::vector<std::string> arguments_of(int argc, char** argv);

std::filesystem::path path_of_argument(const std::string& argument);

bool stderr_is_terminal();

// Turns off the translation of line ends on standard output.
void set_binary_output();

// Duplicates the descriptor of standard output. Returns -errno on failure.
int open_standard_output();

}  // namespace ostrane::command
