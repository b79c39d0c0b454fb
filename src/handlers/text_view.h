#pragma once

namespace ostrane {

// Shows the bytes of the entry `selected_index` in `Text6`: those inside the archive, at most 2
// MiB, with a blank for byte 0. `entry_bytes_left` becomes the size of the entry. Reports a longer
// entry and an archive that cannot be read.
void show_text_entry();

}  // namespace ostrane
