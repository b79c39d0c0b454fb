#pragma once

#include <cstddef>
#include <cstdint>

namespace ostrane {

// The two bars and their labels.
void show_bars(bool shown);

// Shows `Form3` with its two bars, under a caption; hides both and leaves a caption.
void show_progress(const char* caption);
void hide_progress(const char* caption);

// Call once per file of a job with its 0-based index: every `files_per_step`th call moves
// `ProgressBar2` there. `tick` counts the calls since the bar moved last; it begins at 0.
void move_total_bar(std::int16_t& tick, std::int16_t files_per_step, std::size_t index);

// Moves `ProgressBar1`, whose range is that of the current file.
void move_file_bar(std::int32_t value);

}  // namespace ostrane
