#pragma once

#include <vector>

#include "data/archive_format.h"
#include "files/binary_file.h"

namespace ostrane {

struct archive_index {
  std::vector<dat_record> records;  // the end record included
  files::file_stamp stamp;          // of the file from which they were read
};

// Reads the index of an archive. What its offsets are worth is for the reader of the entries to
// see. Throws data_error if it cannot be an archive or changes meanwhile, and file_error.
archive_index read_archive_index(const files::file_path& path);

// Opens an archive for the reading of entries. Throws data_error if it has changed since it had
// that stamp, and file_error.
void open_unchanged(files::binary_file& file, const files::file_path& path,
                    const files::file_stamp& stamp);

}  // namespace ostrane
