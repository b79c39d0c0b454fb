#pragma once

namespace ostrane {

// Brings `Form3` up with its two bars, under a caption, or takes both away and leaves a caption.
void show_progress(const char* caption);
void hide_progress(const char* caption);

}  // namespace ostrane
