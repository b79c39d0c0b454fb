#include "data/icon_stream.h"

#include <algorithm>
#include <span>

namespace ostrane {

void refill_read_buffer(icon_stream& stream, files::binary_file& file) {
  stream.read_buffer_fill = 0;
  stream.read_buffer_pos = 0;
  const std::int32_t size = std::clamp(stream.entry_bytes_left, 0, read_buffer_size);
  const auto to = std::span(stream.read_buffer).first(static_cast<std::size_t>(size));
  stream.read_buffer_fill = static_cast<std::int32_t>(file.read(to));
  stream.entry_bytes_left = stream.read_buffer_fill < size ? 0 : stream.entry_bytes_left - size;
}

}  // namespace ostrane
