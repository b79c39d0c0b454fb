#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/archive_index.h"
#include "data/job_progress.h"

namespace ostrane {

// An entry of the new archive: one of the old archive's, or a file.
struct rewritten_entry {
  record_name name;
  std::optional<std::size_t> old_index;
  files::file_path file;
};

// The entries of an archive in their order.
std::vector<rewritten_entry> entries_of(const archive_index& index);

// Replaces the last entry of the same name by a file, or inserts the file before the first entry
// whose name sorts after its name. Returns its name in the archive, which is cut to 13 characters.
std::string add_entry(std::vector<rewritten_entry>& entries, const std::string& file_name,
                      const files::file_path& file);

// Replaces the archive atomically by one with these entries. Old entries keep their bytes. Throws
// file_error, and data_error if an entry ends after the archive, if the archive has changed since
// its index was read, or if it would become too large. The archive is unchanged then.
void rewrite_archive(const files::file_path& path, const archive_index& old,
                     const std::vector<rewritten_entry>& entries, const job_progress& progress);

}  // namespace ostrane
