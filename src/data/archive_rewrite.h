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

// The entries of an archive, in their order, as it has them.
std::vector<rewritten_entry> entries_of(const archive_index& index);

// Puts a file in the place of the last entry of its name, or before the first one whose name sorts
// after its own. Returns its name in the archive, which is cut at 13 characters.
std::string add_entry(std::vector<rewritten_entry>& entries, const std::string& file_name,
                      const files::file_path& file);

// Replaces the archive in one step by one of these entries, whose bytes are those that they had.
// Throws file_error, and data_error if the archive does not hold an entry whole, has changed since
// its index was read, or would become too large; then it is as it was.
void rewrite_archive(const files::file_path& path, const archive_index& old,
                     const std::vector<rewritten_entry>& entries, const job_progress& progress);

}  // namespace ostrane
