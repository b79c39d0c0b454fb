#pragma once

namespace ostrane {

constexpr const char* pace_at_start = "10";  // in `Text4`, hundredths of a second

// Resize of `Form1`: `Frame1`, `List1` and `Text6` follow its outer size (twips); a window too
// small leaves them as they are.
void lay_out_main_window();

// The focus left `Text4`: what is no number goes back to `pace_at_start`.
void check_pace();

// The focus left `Text5`: a number of 16 bits becomes `max_icons`, all else goes back to what that
// was.
void check_max_icons();

}  // namespace ostrane
