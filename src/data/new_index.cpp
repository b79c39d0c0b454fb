#include "data/new_index.h"

#include <algorithm>

#include "files/code_page.h"
#include "files/little_endian.h"
#include "files/text.h"

namespace ostrane {

record_name padded_name(std::string_view file_name) {
  record_name name;
  name.fill(' ');
  const std::string_view text = files::trimmed(file_name).substr(0, name_size);
  std::copy(text.begin(), text.end(), name.begin());
  return name;
}

record_name stored_name(record_name name) {
  for (char& c : name) c = c == ' ' ? '\0' : files::upper_case(c);
  return name;
}

std::int32_t first_entry_offset(std::size_t files) {
  return static_cast<std::int32_t>(index_size(static_cast<std::int64_t>(files) + 1));
}

std::string index_bytes(std::span<const dat_record> records) {
  std::string bytes(count_size + record_size * records.size(), '\0');
  const auto all = std::as_writable_bytes(std::span(bytes));
  files::put_int32(all, 0, static_cast<std::int32_t>(records.size()));
  for (std::size_t i = 0; i < records.size(); ++i) {
    encode_record(records[i], all.subspan(count_size + record_size * i).first<record_size>());
  }
  return bytes;
}

}  // namespace ostrane
