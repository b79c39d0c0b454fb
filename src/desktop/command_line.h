#pragma once

namespace desktop {

// Answers --version and --help on the standard output, without a display. False if neither is among
// the arguments: the tool has no others of its own.
bool answer_command_line(int argc, char** argv);

}  // namespace desktop
