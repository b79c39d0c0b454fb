#pragma once

#include <vector>

#include "data/archive_format.h"
#include "files/binary_file.h"

namespace ostrane {

struct archive_index {
  std::vector<dat_record> records;  // the end record included
  files::file_stamp stamp;          // of the file from which they were read
};

// Reads the index of an archive. Offsets are not checked. Throws data_error if the file cannot be
// an archive or changes meanwhile, and file_error.
archive_index read_archive_index(const files::file_path& path);

// Opens an archive to read entries. Throws data_error if its stamp differs, and file_error.
void open_unchanged(files::binary_file& file, const files::file_path& path,
                    const files::file_stamp& stamp);

}  // namespace ostrane
