#pragma once

namespace ostrane::command {

// Thrown after Ctrl+C or a similar signal, or if the reader of a pipe has ended. It is not a
// std::exception, so that no job handles it as a failure.
struct interruption {};

// From now on signals to end the program are only recorded, so that no file is left incomplete.
void catch_signals();

// Throws interruption if a signal was recorded.
void check_interruption();

// Ends the process as the signal would have done.
[[noreturn]] void end_interrupted();

}  // namespace ostrane::command
