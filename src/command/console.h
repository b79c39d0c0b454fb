#pragma once

#include <string>
#include <string_view>

// What the program tells: results on the standard output, everything else on the error output.
namespace ostrane::command {

// Exit statuses. `status_differs` also tells of faults and of what was skipped.
constexpr int status_done = 0;
constexpr int status_differs = 1;
constexpr int status_failed = 2;

// Notes are not printed then; faults are.
void set_quiet(bool quiet);

// Prints a result. Throws file_error if it cannot be written, and interruption.
void print(std::string_view text);
void print_line(std::string_view text);
// What was printed is written then. Throws likewise.
void finish_printing();

// "ostrane-dat: FILE: TEXT", a line on the error output. A text that begins with the file's name
// gets none in front; so does an empty `file`.
void tell(std::string_view file, std::string_view text);
// The same, for what is no fault.
void note(std::string_view file, std::string_view text);

// Text for a line: "?" stands for control characters.
std::string printable(std::string_view text);

// The progress of a job, as a bar on the error output if that is a terminal and the job takes long.
// Throws interruption when the user has asked for the end.
void show_progress(std::size_t index, std::size_t count, std::string_view name);
void hide_progress();

}  // namespace ostrane::command
