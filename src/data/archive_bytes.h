#pragma once

#include <string>
#include <vector>

namespace ostrane {

struct archive_entry {
  std::string name;   // of at most 13 characters, which are stored as they are
  std::string bytes;  // one byte per character
};

// The bytes of an archive in normal form: the entries in this order, then the end record.
std::string archive_bytes(const std::vector<archive_entry>& entries);

}  // namespace ostrane
