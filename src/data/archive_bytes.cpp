#include "data/archive_bytes.h"

#include <algorithm>

#include "data/new_index.h"

namespace ostrane {

std::string archive_bytes(const std::vector<archive_entry>& entries) {
  std::string bodies;
  std::vector<dat_record> records;
  const auto add = [&](const std::string& name) {
    dat_record record = {
        .offset = first_entry_offset(entries.size()) + static_cast<std::int32_t>(bodies.size()),
        .name = {}};
    std::copy_n(name.begin(), std::min(name.size(), name_size), record.name.begin());
    records.push_back(record);
  };
  for (const archive_entry& entry : entries) {
    add(entry.name);
    bodies += entry.bytes;
  }
  add("");
  return index_bytes(records) + bodies;
}

}  // namespace ostrane
