#pragma once

#include <string>
#include <vector>

#include "data/archive_format.h"

namespace ostrane {

// Stores an index in `dat_index` and `record_count`.
void store_records(const std::vector<dat_record>& records);

// Reads the index of the archive in `folder` into `dat_index`, `record_count` and `List1`, reads
// its palette and enables the menus that need an archive. Reports a missing file and a bad index.
// After such a failure `List1` is empty, `archive_path` is the new path, and no archive is open,
// but the index and the menus stay. `Text1` always shows `record_count` - 1, which is -1 before any
// index was read.
void read_archive(const std::string& folder);

}  // namespace ostrane
