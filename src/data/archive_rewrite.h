#pragma once

#include <optional>
#include <string>
#include <vector>

#include "data/archive_index.h"
#include "data/job_progress.h"

namespace ostrane {

// An entry of the new archive: an entry of the old archive or a file.
struct rewritten_entry {
  record_name name;
  std::optional<std::size_t> old_index;
  files::file_path file;
};

// Returns the entries of an archive in index order.
std::vector<rewritten_entry> entries_of(const archive_index& index);

// Replaces the last entry of this name by the file. If there is none, inserts the file before
// the first entry whose name sorts after it. Returns the name of the entry, cut at 13 characters.
std::string add_entry(std::vector<rewritten_entry>& entries, const std::string& file_name,
                      const files::file_path& file);

// Replaces the archive atomically by one with these entries. The content of old entries is copied
// unchanged. Throws file_error, and data_error if an old entry exceeds the archive, the archive has
// bytes that belong to no entry or has changed since its index was read, or the new one would be
// too large. The old archive is then unchanged.
void rewrite_archive(const files::file_path& path, const archive_index& old,
                     const std::vector<rewritten_entry>& entries, const job_progress& progress);

}  // namespace ostrane
