#pragma once

namespace desktop {

// Answers a command line with arguments, without a display: --help and --version on the standard
// output, anything else with a line on the error output. Returns the exit status.
int answer_command_line(int argc, char** argv);

}  // namespace desktop
