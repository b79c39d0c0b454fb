#pragma once

#include <memory>
#include <string>

#include "data/icon_file.h"
#include "files/scratch_file.h"

namespace ostrane {

// Packs the icon files of `file` again.
struct icon_repacker {
  files::binary_file& file;
  files::scratch_file scratch{u8"the packed icon file"};
  files::binary_file packed = {};  // reads the scratch file
  std::unique_ptr<icon_stream> stream = std::make_unique<icon_stream>();
};

// Returns the icon file with the shortest streams, or "" if it would not be shorter. Decodes it
// again: its icons are the same. Throws data_error, with a reason that is a fragment, if icons
// would be lost, and file_error.
std::string repacked(icon_repacker& job, const icon_file& old);

}  // namespace ostrane
