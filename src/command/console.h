#pragma once

#include <string>
#include <string_view>

// Output of the program: results on the standard output, everything else on the error output.
namespace ostrane::command {

// Exit statuses. `status_differs` also means faults and skipped entries.
constexpr int status_done = 0;
constexpr int status_differs = 1;
constexpr int status_failed = 2;

// Suppresses notes, but not faults.
void set_quiet(bool quiet);

// Prints a result. Throws file_error if it cannot be written, and interruption.
void print(std::string_view text);
void print_line(std::string_view text);
// Flushes the standard output. Throws the same.
void finish_printing();

// Prints the line "ostrane-dat: FILE: TEXT" on the error output. The file's name is left out if it
// is empty or if the text begins with it.
void report(std::string_view file, std::string_view text);
// The same for what is not a fault.
void note(std::string_view file, std::string_view text);

// Text for one line: control characters become "?".
std::string printable(std::string_view text);

// Shows a progress bar on the error output if that is a terminal and the job takes long. Throws
// interruption after Ctrl+C.
void show_progress(std::size_t index, std::size_t count, std::string_view name);
void hide_progress();

}  // namespace ostrane::command
