#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// All that `Form3` shows: the progress of a job, the working text, a report.
namespace ostrane {

// Shows or hides the two bars and their labels.
void set_bars_visible(bool shown);

// Show `Form3` with its bars, and hide both. Both procedures set its caption.
void show_progress(const char* caption);
void hide_progress(const char* caption);

// Let the screen repaint `Form3`. The second one also sets its text.
void refresh_progress();
void show_progress_text(const std::string& text);

// Sets the range of `ProgressBar2` (files) or `ProgressBar1` (bytes of the current file) to
// 0..`max`; `Value` stays.
void set_total_range(std::int64_t max);
void set_file_range(std::int32_t max);

// Call once per file of a job with its 0-based index: every `files_per_step`th call moves
// `ProgressBar2` there. `tick` counts the calls since the last move; it starts at 0.
void advance_total_bar(std::int16_t& tick, std::int16_t files_per_step, std::size_t index);

// Moves `ProgressBar1` to this number of bytes.
void move_file_bar(std::int32_t value);

// Writes the working text and its caption into `Form3` and lets the screen repaint it; neither
// shows nor hides anything.
void show_working_message();

// Shows a text in `Form3` until the user clicks it. The click calls `close_report`, which hides and
// clears the form.
void show_report(const std::string& caption, const std::string& text);
void close_report();

}  // namespace ostrane
