#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "data/new_index.h"

namespace ostrane {

struct archive_entry {
  std::string name;   // at most 13 characters, stored unchanged
  std::string bytes;  // one byte per character
};

// Returns an archive of these entries in this order, without gaps.
inline std::string archive_bytes(const std::vector<archive_entry>& entries) {
  std::string bodies;
  std::vector<dat_record> records;
  const auto add = [&](const std::string& name) {
    const std::size_t offset =
        static_cast<std::size_t>(first_entry_offset(entries.size())) + bodies.size();
    records.push_back({.offset = static_cast<std::int32_t>(offset), .name = {}});
    std::copy_n(name.begin(), std::min(name.size(), name_size), records.back().name.begin());
  };
  for (const archive_entry& entry : entries) {
    add(entry.name);
    bodies += entry.bytes;
  }
  add("");
  return index_bytes(records) + bodies;
}

}  // namespace ostrane
