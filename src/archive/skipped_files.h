#pragma once

#include <string>
#include <vector>

#include "data/skipped_file.h"

namespace ostrane {

// `heading` and one line for each file, the first 20 by name and reason, the others by number; ""
// if there are none.
std::string text_of(const std::vector<skipped_file>& files, const char* heading);

}  // namespace ostrane
