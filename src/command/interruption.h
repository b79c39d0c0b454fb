#pragma once

namespace ostrane::command {

// Thrown when the user has asked for the end of the program, or the reader of a pipe has gone. It
// is not a std::exception, so that no part of a job takes it for a failure of its own.
struct interruption {};

// From then on signals that ask for the end are only noted, so that nothing is left half-written.
void catch_signals();

// Throws interruption if there was such a signal.
void check_interruption();

// Ends the process as the signal would have.
[[noreturn]] void end_interrupted();

}  // namespace ostrane::command
