#pragma once

#include <filesystem>

// Names of the hidden files that exist beside a file while it is written.
namespace files {

// The path of the lock file of `target`, ".NAME.lock" in its folder. NAME is its name in upper
// case.
std::filesystem::path lock_beside(const std::filesystem::path& target);

// A path for the new content of `target`, ".NAME.<time>.new" in its folder. The time makes a clash
// with another copy of the tool unlikely; the caller creates the file with open_new and retries.
std::filesystem::path temporary_beside(const std::filesystem::path& target);
// True if `name` can be a result of temporary_beside for `target`.
bool is_temporary_of(const std::filesystem::path& target, const std::filesystem::path& name);

// True if `name` can be that of a lock or a temporary file of any target.
bool is_work_file(const std::filesystem::path& name);

}  // namespace files
