#pragma once

#include <string>

#include "data/icon_file.h"
#include "files/scratch_file.h"

namespace ostrane {

// Returns the icon file with the shortest streams. Writes it to `scratch` to decode it again: its
// icons are the same. Throws data_error, with a reason that is a fragment, if icons would be lost,
// and file_error.
std::string repacked(files::binary_file& file, const icon_file& old, files::scratch_file& scratch);

}  // namespace ostrane
