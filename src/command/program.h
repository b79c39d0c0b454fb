#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "files/file_path.h"

// What is another thing on each system.
namespace ostrane::command {

// The arguments, without the program's name: UTF-8, or on systems where names are bytes any bytes.
std::vector<std::string> arguments_of(int argc, char** argv);

std::filesystem::path path_of_argument(const std::string& argument);
std::string argument_of_path(const std::filesystem::path& path);

bool errors_go_to_terminal();

// No line ends are translated then.
void set_binary_output();

// Another open file for the standard output, of file_calls; negative on failure.
int open_standard_output();

}  // namespace ostrane::command
