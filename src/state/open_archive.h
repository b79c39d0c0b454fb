#pragma once

#include <span>

#include "data/archive_format.h"
#include "files/binary_file.h"

// The open archive: that whose index `dat_index` and `List1` hold.
namespace ostrane {

// Opens its file for the reading of entries. Throws data_error if no archive is open or if its file
// has changed since the index was read, and file_error.
void open_archive_file(files::binary_file& file);

// The records in use of `dat_index`.
std::span<const dat_record> index_records();

}  // namespace ostrane
