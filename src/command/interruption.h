#pragma once

namespace ostrane::command {

// Thrown after a signal to terminate or a broken pipe. Not a std::exception, so that code that
// handles failures does not catch it.
struct interruption {};

// Installs handlers that only store signals to terminate, so that temporary files are removed.
void catch_signals();

// Throws interruption if a signal was stored.
void check_interruption();

// Terminates the process by the stored signal.
[[noreturn]] void raise_stored_signal();

}  // namespace ostrane::command
