#include "data/shp_reader.h"

#include <algorithm>
#include <array>

#include "data/entry_range.h"

namespace ostrane {

namespace {

// Far more bytes than a picture needs. Without a limit a small directory whose entries all point to
// one long stream would block the tool for minutes.
constexpr std::int64_t max_bytes_per_pixel = 16;
constexpr std::int64_t max_extra_bytes = 65536;

template <std::size_t Size>
bool read_at(files::binary_file& file, std::int64_t offset, std::array<std::byte, Size>& bytes) {
  if (offset < 0) return false;
  file.seek(offset);
  return file.read(bytes) == bytes.size();
}

}  // namespace

std::int64_t max_stream_bytes(const icon_head& head) {
  const std::int64_t rows = std::max(head.no_of_rows + 1, 1);
  const std::int64_t columns = std::max(head.no_of_cols + 1, 1);
  return max_bytes_per_pixel * rows * columns + max_extra_bytes;
}

bool read_shp_head(files::binary_file& file, std::int32_t entry_offset, shp_head& head) {
  std::array<std::byte, shp_head_size> bytes;
  if (!read_at(file, entry_offset, bytes)) return false;
  head = decode_shp_head(bytes);
  return true;
}

void read_icon_positions(files::binary_file& file, std::int32_t entry_offset,
                         std::span<std::int32_t> positions) {
  std::array<std::byte, shp_dir_entry_size> bytes;
  for (std::int32_t& position : positions) {
    const bool was_read = file.read(bytes) == bytes.size();
    position = was_read ? clamp_to_int32(std::int64_t{entry_offset} +
                                         decode_shp_dir_entry(bytes).icon_offset + 1)
                        : 0;
  }
}

bool read_icon_head(files::binary_file& file, std::int32_t icon_position, icon_head& head) {
  std::array<std::byte, icon_head_size> bytes;
  if (!read_at(file, std::int64_t{icon_position} - 1, bytes)) return false;
  head = decode_icon_head(bytes);
  return true;
}

std::int32_t stream_size(const icon_head& head, std::int32_t icon_position,
                         std::int32_t entry_end) {
  // Counted from the 1-based position of the head. The head has been read, so this is 23 bytes more
  // than the entry has left. A valid stream ends before them.
  const std::int64_t bytes_left = std::int64_t{entry_end} - icon_position;
  return clamp_to_int32(std::min(bytes_left, max_stream_bytes(head)));
}

}  // namespace ostrane
