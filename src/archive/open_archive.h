#pragma once

#include "files/binary_file.h"

namespace ostrane {

// Opens the archive at `archive_path` for the reading of entries. Throws file_error if no archive
// is open, if its file cannot be opened, or if that has changed since the index was read.
void open_archive_file(files::binary_file& file);

}  // namespace ostrane
