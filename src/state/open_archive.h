#pragma once

#include <span>

#include "data/archive_format.h"

// The open archive is the one whose index `dat_index` and `List1` hold.
namespace ostrane {

// Opens `archive_file` to read entries. Throws data_error if no archive is open or if its file has
// changed since the index was read, and file_error.
void open_archive_file();

// True if the icons shown last, those of `directory_index`, are from the open archive.
bool icons_are_from_open_archive();

// The first `record_count` records of `dat_index`.
std::span<const dat_record> index_records();

}  // namespace ostrane
