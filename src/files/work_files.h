#pragma once

#include <filesystem>
#include <vector>

#include "files/system_calls.h"

// The hidden files that exist beside a file while it is written: its lock ".NAME.lock" and its new
// content ".NAME.<time>.new". NAME is in upper case, as names that differ in case only share them.
namespace files {

// The path of the lock file of `target`.
std::filesystem::path lock_beside(const std::filesystem::path& target);

// A path for the new content of `target`. The time makes a clash with another copy of the tool
// unlikely; the caller creates the file with open_new and retries.
std::filesystem::path temporary_beside(const std::filesystem::path& target);

// True if `name` can be that of a lock or of new content.
bool is_work_file(const std::filesystem::path& name);

// Removes the files of new content in a folder that no running copy of the tool holds, as it keeps
// them locked, and the locks beside them. Failures are ignored. Call once before a job that writes
// into the folder.
void clear_leftovers(const std::filesystem::path& folder);
// The same for a folder with these entries.
void clear_leftovers(const std::filesystem::path& folder, const std::vector<listed_entry>& listed);

}  // namespace files
