#include "data/archive_format.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "files/code_page.h"
#include "files/little_endian.h"
#include "files/text.h"

namespace ostrane {

void encode_record(const dat_record& record, record_bytes bytes) {
  files::put_int32(bytes, 0, record.offset);
  std::memcpy(bytes.data() + 4, record.name.data(), name_size);
}

std::string name_without_nuls(const record_name& name) {
  // Most names have NUL characters at the end only.
  const auto* const first = std::find(name.begin(), name.end(), '\0');
  std::string text(name.begin(), first);
  std::remove_copy(first, name.end(), std::back_inserter(text), '\0');
  return text;
}

std::string name_with_blanks(const record_name& name) {
  std::string text(name.begin(), name.end());
  std::replace(text.begin(), text.end(), '\0', ' ');
  return std::string(files::trimmed(text));
}

std::string name_key(const record_name& name) { return files::compare_key(name_with_blanks(name)); }

bool is_archive_name(std::string_view name) { return files::upper_case(name) == archive_name; }

}  // namespace ostrane
