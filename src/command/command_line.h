#pragma once

#include <string>
#include <vector>

namespace ostrane::command {

// Runs the command that the arguments tell, which come without the program's name. Returns the exit
// status; throws interruption.
int run(std::vector<std::string> arguments);

}  // namespace ostrane::command
