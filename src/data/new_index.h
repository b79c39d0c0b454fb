#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "data/archive_format.h"

namespace ostrane {

// The name of a file as a builder notes it: trimmed, cut at 13 characters or filled with blanks.
record_name padded_name(std::string_view file_name);

// The same as the archive holds it: in upper case, with NUL for every blank.
record_name stored_name(record_name name);

// The offset of the first entry in an archive of so many files.
std::int32_t first_entry_offset(std::size_t files);

// The bytes of an index, from the number of its records on.
std::string index_bytes(std::span<const dat_record> records);

}  // namespace ostrane
