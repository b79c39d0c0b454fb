#pragma once

#include <string>

namespace ostrane {

// Reads the index of the archive in `folder` into `dat_index`, `record_count` and `List1`, reads
// its palette and enables the menus that need an archive. Reports a missing file and a bad index;
// then `List1` is empty, `archive_path` is the new path, and nothing else changes. `Text1` shows
// `record_count` - 1 either way.
void read_archive(const std::string& folder);

}  // namespace ostrane
