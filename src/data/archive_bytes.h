#pragma once

#include <string>
#include <vector>

namespace ostrane {

struct archive_entry {
  std::string name;   // at most 13 characters, stored unchanged
  std::string bytes;  // one byte per character
};

// Returns an archive of these entries in this order, without gaps.
std::string archive_bytes(const std::vector<archive_entry>& entries);

}  // namespace ostrane
