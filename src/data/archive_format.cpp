#include "data/archive_format.h"

#include <algorithm>
#include <cstring>

#include "files/little_endian.h"
#include "files/text.h"

namespace ostrane {

dat_record decode_record(std::span<const std::byte, record_size> bytes) {
  dat_record record = {};
  record.offset = files::int32_at(bytes, 0);
  std::memcpy(record.name.data(), bytes.data() + 4, name_size);
  return record;
}

void encode_record(const dat_record& record, record_bytes bytes) {
  files::put_int32(bytes, 0, record.offset);
  std::memcpy(bytes.data() + 4, record.name.data(), name_size);
}

std::string name_without_nuls(const record_name& name) {
  std::string text(name.begin(), name.end());
  std::erase(text, '\0');
  return text;
}

std::string name_with_blanks(const record_name& name) {
  std::string text(name.begin(), name.end());
  std::replace(text.begin(), text.end(), '\0', ' ');
  return std::string(files::trimmed(text));
}

}  // namespace ostrane
