#pragma once

#include <string>
#include <vector>

#include "archive/format.h"
#include "files/case_insensitive_lookup.h"

namespace ostrane {

// Fills `make_index` for the files of a folder (a path with "\" at its end) in their order, and
// gives the new archive's records, the end record included. Throws file_error if a file is not to
// be had or the archive would not fit its offsets.
std::vector<dat_record> make_new_index(const std::string& folder,
                                       const std::vector<std::string>& files,
                                       files::case_insensitive_lookup& names);

}  // namespace ostrane
