#pragma once

namespace ostrane {

// Resize of `Form1`: `Frame1`, `List1` and `Text6` follow its outer size (twips); a window too
// small leaves them as they are.
void lay_out_main_window();

// The focus left `Text4` or `Text5`: what is no number goes back to the start value, or to the last
// good one.
void check_pace();
void check_max_icons();

}  // namespace ostrane
