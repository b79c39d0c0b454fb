#pragma once

#include <string>
#include <vector>

#include "data/skipped_file.h"

namespace ostrane {

// `heading` and the files: one line with name and reason for each of the first 20, then the number
// of the others. "" if there are none.
std::string skipped_files_text(const std::vector<skipped_file>& files, const char* heading);

}  // namespace ostrane
