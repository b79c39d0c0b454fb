#pragma once

#include <vector>

#include "archive_bytes.h"

namespace ostrane::samples {

// The files of the sample archive.
std::vector<archive_entry> sample_files();

}  // namespace ostrane::samples
