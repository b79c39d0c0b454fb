#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/archive_format.h"

namespace ostrane {

// The name of a file as in make_record: trimmed, then cut or padded with blanks to 13 characters.
record_name padded_name(std::string_view file_name);

// The same as stored in the archive: in upper case, with NUL for every blank.
record_name stored_name(record_name name);

// The offset of the first entry in an archive with this number of files.
std::int32_t first_entry_offset(std::size_t files);

// The bytes of an index: the number of records, then the records.
std::string index_bytes(std::span<const dat_record> records);

}  // namespace ostrane
