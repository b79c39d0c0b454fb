#pragma once

#include <cstdint>
#include <string>

namespace ostrane {

// Files or entries that a job has to tell of: the first 20 by name and reason, the others by
// number.
struct skipped_files {
  std::string named;
  std::int32_t count = 0;
};

// `reason` is the end of a sentence.
void add_skipped(skipped_files& files, const std::string& name, const std::string& reason);

// `heading` and one line for each file, or "" if there are none.
std::string text_of(const skipped_files& files, const char* heading);

}  // namespace ostrane
