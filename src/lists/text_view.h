#pragma once

namespace ostrane {

// Shows the bytes of the entry `selected_index` in `Text6`, as far as the archive holds them and up
// to 2 MiB; byte 0 shows as a blank. A longer entry, and an archive that cannot be read, give a
// message.
void show_text_entry();

}  // namespace ostrane
