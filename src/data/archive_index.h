#pragma once

#include <string>
#include <vector>

#include "data/archive_format.h"
#include "data/data_error.h"
#include "data/entry_range.h"
#include "files/binary_file.h"

namespace ostrane {

struct archive_index {
  std::vector<dat_record> records;  // the end record included
  files::file_stamp stamp;          // of the archive file
};

// Another program has written to an archive between two steps of a job.
struct archive_changed : data_error {
  using data_error::data_error;
};

// Reads the index of an archive. Offsets are not checked. Throws data_error if the file is not an
// archive or changes during the read, and file_error.
archive_index read_archive_index(const files::file_path& path);

// The same for a file that is open at its start; `path` is for messages.
archive_index read_archive_index(files::binary_file& file, const files::file_path& path);

// True if each entry ends where or before the next one begins, behind the index and in the file. A
// file of another format practically never has such an index.
bool is_sound(const archive_index& index);

// The range of an entry. Throws data_error unless the archive has all of its bytes, which is_whole
// tells.
entry_range whole_entry(const archive_index& index, std::size_t entry);
bool is_whole(const archive_index& index, std::size_t entry);

// Opens an archive to read entries. Throws archive_changed if its stamp has changed, and
// file_error.
void open_unchanged(files::binary_file& file, const files::file_path& path,
                    const files::file_stamp& stamp);

// Throws archive_changed if an open archive was written to after it had this stamp. The message
// names the job.
void require_unchanged(files::binary_file& archive, const files::file_stamp& stamp,
                       const std::string& job);

}  // namespace ostrane
