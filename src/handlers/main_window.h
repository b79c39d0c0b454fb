#pragma once

namespace ostrane {

constexpr const char* default_interval_text = "10";  // of `Text4`, hundredths of a second

// Resize of `Form1`: resizes `Frame1`, `List1` and `Text6` with its outer size (twips). Below a
// minimum height or width they keep theirs.
void lay_out_main_window();

// LostFocus of `Text4`: resets a text that is not a number to `default_interval_text`.
void check_interval();

// LostFocus of `Text5`: stores a 16-bit number in `max_icons`, rounded half to even; resets any
// other text to `max_icons`.
void check_max_icons();

}  // namespace ostrane
