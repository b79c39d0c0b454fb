#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "disk.h"
#include "failing_calls.h"
#include "files/code_page.h"

// What may be in the folders of a job after one of its calls failed.
namespace ostrane {

// The files by their upper-case paths. No two paths differ in case only.
inline file_map all_files(const fs::path& folder) {
  file_map all;
  for (const auto& found : fs::recursive_directory_iterator(folder)) {
    if (!found.is_regular_file()) continue;
    const std::string name =
        files::upper_case(found.path().lexically_relative(folder).generic_string());
    EXPECT_TRUE(all.emplace(name, bytes_of(found.path())).second) << name;
  }
  return all;
}

// Removes what may stay: a hidden file that cannot be checked, which the next job deletes, and a
// file that was made but reported as failed.
inline void remove_leftovers(file_map& after, const file_map& before, const call_fault& fault,
                             const std::string& call) {
  const bool lies = fault.kind == call_fault::lies;
  const bool may_leave_hidden = fault.lasting || lies || call.starts_with("info");
  const bool may_leave_empty = lies && call == "open_new";
  std::erase_if(after, [&](const auto& file) {
    const bool is_hidden = ("/" + file.first).find("/.") != std::string::npos;
    const bool is_empty = file.second.empty() && !before.contains(file.first);
    return (may_leave_hidden && is_hidden) || (may_leave_empty && is_empty);
  });
}

// Each file is the old or the new one, and no old one is gone.
inline void expect_complete_files(const file_map& after, const file_map& before,
                                  const file_map& done) {
  for (const auto& file : after) {
    EXPECT_GT(std::ranges::count(before, file) + std::ranges::count(done, file), 0) << file.first;
  }
  for (const auto& [name, bytes] : before) EXPECT_TRUE(after.contains(name)) << name;
}

}  // namespace ostrane
