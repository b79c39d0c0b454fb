#pragma once

namespace ostrane {

// Load event of `Form1`: sets the defaults and the built-in colours, reads the icon names and loads
// the first twelve slots. Without a drive C: `Form2` stays in the current folder.
void load_form1();

// Resize of `Form1`: resizes `Frame1`, `List1` and `Text6` with its outer size (twips). Below a
// minimum height or width they keep theirs.
void lay_out_main_window();

// LostFocus of `Text4`: resets a text that is not a number to 10.
void correct_interval();

// LostFocus of `Text5`: stores a 16-bit number in `max_icons`, rounded half to even; resets any
// other text to `max_icons`.
void accept_max_icons();

}  // namespace ostrane
