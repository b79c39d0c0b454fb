#pragma once

#include <string>
#include <vector>

namespace ostrane::command {

// Runs the command of these arguments, which do not include the program's name. Returns the exit
// status; throws interruption.
int run(std::vector<std::string> arguments);

}  // namespace ostrane::command
