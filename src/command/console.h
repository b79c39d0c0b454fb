#pragma once

#include <string>
#include <string_view>

#include "data/job_progress.h"

// Output of the program: results go to standard output, everything else to standard error.
namespace ostrane::command {

// Exit statuses. `status_differs` also stands for faults and skipped entries.
constexpr int status_done = 0;
constexpr int status_differs = 1;
constexpr int status_failed = 2;

// Suppresses notes and progress. Errors are still printed.
void set_quiet(bool quiet);

// Prints a result, buffered. Throws file_error if the output fails, and interruption.
void print(std::string_view text);
void print_line(std::string_view text);
// Flushes the buffer of print. Throws the same.
void flush_output();

// Prints the line "ostrane-dat: FILE: TEXT" to standard error. "FILE: " is omitted if `file` is
// empty or `text` begins with it.
void print_error(std::string_view file, std::string_view text);
// The same for a note, which set_quiet suppresses.
void print_note(std::string_view file, std::string_view text);

// Replaces control characters by "?".
std::string printable(std::string_view text);

// Shows the progress of a long job as a bar on standard error if that is a terminal. An empty name
// keeps the latest one. Throws interruption after a signal to terminate.
void show_progress(std::size_t index, std::size_t count, std::string_view name);
void hide_progress();
// The progress of a job on `count` files, for show_progress.
job_progress shown_progress(std::size_t count);

}  // namespace ostrane::command
