#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "files/file_path.h"

// What differs between systems.
namespace ostrane::command {

// The arguments without the program's name: UTF-8, or any bytes on systems whose names are bytes.
std::vector<std::string> arguments_of(int argc, char** argv);

std::filesystem::path path_of_argument(const std::string& argument);
std::string argument_of_path(const std::filesystem::path& path);

bool errors_go_to_terminal();

// Turns off the translation of line ends.
void set_binary_output();

// A duplicate of the standard output for file_calls, or a negative errno number.
int open_standard_output();

}  // namespace ostrane::command
