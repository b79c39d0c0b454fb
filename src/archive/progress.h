#pragma once

#include <cstddef>
#include <cstdint>

namespace ostrane {

// Brings `Form3` up with its two bars, under a caption, or takes both away and leaves a caption.
void show_progress(const char* caption);
void hide_progress(const char* caption);

// To be called for each file of a job, with its number from 0 on: every `files_a_step`th call moves
// `ProgressBar2` there. `tick` counts the calls since the bar moved last; it begins at 0.
void move_total_bar(std::int16_t& tick, std::int16_t files_a_step, std::size_t index);

}  // namespace ostrane
