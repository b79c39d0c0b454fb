#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "data/archive_format.h"
#include "data/job_progress.h"
#include "data/skipped_file.h"
#include "files/binary_file.h"
#include "files/failure.h"
#include "files/file_writer.h"

namespace ostrane {

struct extraction_result {
  std::vector<skipped_file> skipped;  // entries that were not written or were written over
  std::int32_t written = 0;           // the other entries
  std::vector<skipped_file> hidden;   // written files that the system hides by default
  files::failure stopped;             // why the job was aborted
};

// Returns the path of the file for an entry. Entries whose names differ in case only may get the
// same file.
using entry_target = std::function<files::file_path(const std::string& name)>;

struct extraction_choice {
  std::function<bool(std::size_t index)> is_wanted;  // null for all
  // Each entry begins where the previous one ends, whatever its own offset is. Requires that all
  // entries are wanted.
  bool entries_are_adjacent = true;
  files::write_rules rules = {.mode = files::write_mode::in_place};  // besides the source
  bool truncates = false;  // an existing file that is overwritten
  // Called before each file is written. If it returns false, the file is only checked for being
  // writable, and counts as written. May be null.
  std::function<bool(const files::file_path& target)> may_write = {};
};

// Writes the wanted entries of an open archive, each to its own file. A full disk, a lack of memory
// and an archive that changes meanwhile abort the job; any other failure skips the entry. An
// incomplete new file is removed. The archive is never overwritten.
extraction_result extract_entries(files::binary_file& archive, std::span<const dat_record> records,
                                  const entry_target& target, const job_progress& progress,
                                  const extraction_choice& choice = {});

}  // namespace ostrane
