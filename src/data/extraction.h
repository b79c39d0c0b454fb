#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "data/archive_format.h"
#include "data/job_progress.h"
#include "data/skipped_file.h"
#include "files/binary_file.h"

namespace ostrane {

struct extraction_result {
  std::int32_t written = 0;           // entries
  std::vector<skipped_file> skipped;  // entries that were not written
  std::vector<skipped_file> hidden;   // written files that the system hides by default
  std::string stopped;                // why the job was aborted, or ""
};

// Returns the path of the file for an entry.
using entry_target = std::function<files::file_path(const std::string& name)>;
// Called after a new file was created.
using entry_file_created = std::function<void(const files::file_path& path)>;

struct extraction_choice {
  std::function<bool(std::size_t index)> is_wanted;  // null for all
  // Reads each entry from its own offset and replaces existing files atomically.
  bool replaces_atomically = false;
};

// Writes every entry of an open archive to its own file. Existing files are overwritten. By default
// the entries are read as adjacent, starting at the offset of the first record. A full disk and a
// lack of memory abort the job; any other failure skips the entry. An incomplete new file is
// removed. The archive is never overwritten.
extraction_result extract_entries(files::binary_file& archive, std::span<const dat_record> records,
                                  const entry_target& target, const entry_file_created& on_created,
                                  const job_progress& progress,
                                  const extraction_choice& choice = {});

}  // namespace ostrane
