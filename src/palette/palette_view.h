#pragma once

namespace ostrane {

// Shows `colour_table` in `Frame1` as 16 by 16 swatches, one per slot, with the numbers of
// `stored_palette` as tool tips, and sets `Text2` and `Text3`. Loads slots up to 256 and stops a
// running motion.
void show_palette_view();

}  // namespace ostrane
