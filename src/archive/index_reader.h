#pragma once

#include <string>

namespace ostrane {

// Reads the index of the archive in a folder into `dat_index`, `record_count` and `List1`, takes
// the palette from its GAME.PAL and opens the menus that need an archive. If the file is not there
// or its index is bad, one message says so; then `List1` is empty, the path is the new one, and all
// else stays as it was. `Text1` shows the number of entries either way.
void read_archive(const std::string& folder);

}  // namespace ostrane
