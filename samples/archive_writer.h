#pragma once

#include <string>
#include <vector>

#include "sample_files.h"

namespace ostrane::samples {

// The bytes of an archive in normal form: the files in this order, then the end record.
std::string archive_file(const std::vector<sample_file>& files);

}  // namespace ostrane::samples
