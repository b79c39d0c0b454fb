#pragma once

#include <vector>

#include "data/archive_bytes.h"

namespace ostrane::samples {

// The files that the sample archive is built from.
std::vector<archive_entry> sample_files();

}  // namespace ostrane::samples
