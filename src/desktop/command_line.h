#pragma once

namespace desktop {

// Handles command line arguments without a display: --help and --version print to the standard
// output, all others print an error. Returns the exit status.
int answer_command_line(int argc, char** argv);

}  // namespace desktop
