#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "data/job_progress.h"
#include "files/failure.h"

// Output of the program: results go to standard output, everything else to standard error.
namespace ostrane::command {

// Exit statuses. `status_differs` also stands for faults and skipped entries.
constexpr int status_done = 0;
constexpr int status_differs = 1;
constexpr int status_failed = 2;

enum class talk : std::uint8_t {
  quiet,   // no notes and no progress. Errors are still printed
  normal,  // as described below
  verbose  // also what is written
};
void configure_console(talk wanted, bool is_dry_run);

// Nothing must be written.
bool is_dry_run();
// Reports a file that is about to be written, if the user wants that.
void report_write(const std::u8string& target);
// Reports a step of a change under --verbose and --dry-run.
void print_step(const files::failure& step);

// Prints the bytes of a result, buffered. Throws file_error if the output fails, and interruption.
void print(std::string_view bytes);
void print_line(std::u8string_view text);
// Flushes the buffer of print. Throws the same.
void flush_output();

// Prints the line "ostrane-dat: SUBJECT: REASON" to standard error, without an empty subject.
void print_error(const files::failure& failed);
// The same for a note, which is not printed if quiet.
void print_note(const files::failure& failed);

// Shows the progress of a long job as a bar on standard error if that is a terminal. `name` is in
// the code page; an empty one keeps the latest. Throws interruption after a signal to terminate.
void show_progress(std::size_t index, std::size_t count, std::string_view name);
void hide_progress();
// The progress of a job on `count` files, for show_progress.
job_progress shown_progress(std::size_t count);

}  // namespace ostrane::command
