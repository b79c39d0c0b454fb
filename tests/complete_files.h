#pragma once

#include <gtest/gtest.h>

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

struct failed_call {
  call_fault fault;
  std::string words;  // of the message about it
  std::string name = {};
};
inline const failed_call failed_calls[] = {
    {{.reason = ENOSPC}, "the disk is full"},
    {{.reason = ENOSPC, .lasting = true}, "the disk is full"},
    {{.reason = EFBIG}, "it would be larger than the system allows"},
    {{.reason = EIO}, "Input/output error"},
    {{.reason = EIO, .lasting = true}, "Input/output error"},
    {{.kind = call_fault::lies, .reason = EIO}, "Input/output error"},
    {{.kind = call_fault::interrupted}, "Interrupted"},
    {{.reason = EACCES}, "access is not allowed"},
    {{.reason = EPERM, .lasting = true}, "access is not allowed"},
    {{.reason = EROFS}, "the disk cannot be written to"},
    {{.reason = EBUSY}, "it is in use"},
    {{.kind = call_fault::does_nothing}, "Input/output error"}};

// Removes what may stay: a hidden file that cannot be checked, which the next job deletes, and a
// file that was made but reported as failed.
inline void remove_leftovers(file_map& after, const file_map& before, const failed_call& failed) {
  const bool lies = failed.fault.kind == call_fault::lies;
  const bool may_leave_hidden = failed.fault.lasting || lies || failed.name.starts_with("info");
  const bool may_leave_empty = lies && failed.name == "open_new";
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

// Each file call of a job fails in turn, in each way. Each file in the folder is then the old one
// or the complete new one. `job` returns what it says and the files in the folder. Returns the
// number of failures.
int expect_old_or_new_files(const fs::path& folder, const auto& prepare, const auto& job,
                            const auto& check) {
  prepare();
  const file_map before = all_files(folder);
  const auto done = job();
  int tried = 0;
  for (failed_call failed : failed_calls) {
    for (int at = 0;; ++at, ++tried) {
      prepare();
      failing_calls failing(at, failed.fault);
      auto after = job();
      if (!failing.happened()) break;
      failed.name = failing.calls[static_cast<std::size_t>(at)];
      SCOPED_TRACE(testing::Message() << failed.name << at << failed.words << failed.fault.lasting);
      remove_leftovers(after.files, before, failed);
      expect_complete_files(after.files, before, done.files);
      check(failed, after, done);
    }
  }
  return tried;
}

}  // namespace ostrane
