#pragma once

#include <string>
#include <vector>

namespace ostrane::command {

// Runs a command: the words of the line after the program's name. Returns the exit status; throws
// interruption.
int run_command(const std::vector<std::string>& words);

}  // namespace ostrane::command
