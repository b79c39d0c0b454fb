#pragma once

#include <string>
#include <vector>

namespace ostrane::command {

// Runs a command. `arguments` does not include the program's name. Returns the exit status; throws
// interruption.
int run_command(std::vector<std::string> arguments);

}  // namespace ostrane::command
