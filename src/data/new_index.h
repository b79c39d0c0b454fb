#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "data/archive_format.h"

namespace ostrane {

// Returns the name of a file for the index: trimmed, then cut or padded with blanks to
// 13 characters. Case is unchanged.
record_name padded_name(std::string_view file_name);

// Returns that name as the archive stores it: in upper case, with NUL for every blank.
record_name stored_name(record_name name);

// Returns the offset of the first entry in an archive of `files` entries.
std::int32_t first_entry_offset(std::size_t files);

// Returns an index as stored: the number of records, then the records.
std::string index_bytes(std::span<const dat_record> records);

}  // namespace ostrane
