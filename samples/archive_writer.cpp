#include "archive_writer.h"

#include <algorithm>

#include "archive/format.h"
#include "files/little_endian.h"

namespace ostrane::samples {

std::string archive_file(const std::vector<sample_file>& files) {
  std::string index;
  std::string bodies;
  std::array<std::byte, record_size> bytes;
  const auto append = [&](std::size_t size) {
    index.append(reinterpret_cast<const char*>(bytes.data()), size);
  };
  const std::size_t count = files.size() + 1;
  files::put_int32(bytes, 0, static_cast<std::int32_t>(count));
  append(count_size);
  const auto append_record = [&](const std::string& name) {
    dat_record record = {};
    record.offset = static_cast<std::int32_t>(count_size + record_size * count + bodies.size());
    std::copy_n(name.begin(), std::min(name.size(), name_size), record.name.begin());
    encode_record(record, bytes);
    append(record_size);
  };
  for (const sample_file& file : files) {
    append_record(file.name);
    bodies += file.bytes;
  }
  append_record("");
  return index + bodies;
}

}  // namespace ostrane::samples
