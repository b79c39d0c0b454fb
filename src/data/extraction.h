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
  std::vector<skipped_file> hidden;   // files that the system hides
  std::string stopped;                // why the job was stopped, or ""
};

// Returns the path of the file for an entry.
using entry_target = std::function<files::file_path(const std::string& name)>;
// Called after a new file was created.
using entry_file_created = std::function<void(const files::file_path& path)>;

// Which entries to write, and how.
struct extraction_choice {
  std::function<bool(std::size_t index)> is_wanted;  // null for all
  // Each entry is read from its own offset, and an existing file is replaced whole.
  bool replaces_whole = false;
};

// Writes every entry of an open archive to its own file, which is created or overwritten. The
// entries are taken to be contiguous from the offset of the first record on. A full disk and a lack
// of memory stop the job; any other failure skips the entry. A new file that is incomplete is
// removed. The archive itself is never overwritten.
extraction_result extract_entries(files::binary_file& archive, std::span<const dat_record> records,
                                  const entry_target& target, const entry_file_created& on_created,
                                  const job_progress& progress,
                                  const extraction_choice& choice = {});

}  // namespace ostrane
