#include "data/shp_format.h"

#include <cstring>

#include "files/little_endian.h"

namespace ostrane {

shp_head decode_shp_head(std::span<const std::byte, shp_head_size> bytes) {
  shp_head head;
  std::memcpy(head.identifier.data(), bytes.data(), head.identifier.size());
  head.icon_count = files::int32_at(bytes, 4);
  return head;
}

shp_dir_entry decode_shp_dir_entry(std::span<const std::byte, shp_dir_entry_size> bytes) {
  return {.icon_offset = files::int32_at(bytes, 0)};
}

icon_head decode_icon_head(std::span<const std::byte, icon_head_size> bytes) {
  return {.no_of_rows = files::int16_at(bytes, 0),
          .no_of_cols = files::int16_at(bytes, 2),
          .col_start = files::int32_at(bytes, 8),
          .row_start = files::int32_at(bytes, 12),
          .col_end = files::int32_at(bytes, 16),
          .row_end = files::int32_at(bytes, 20),
          .spare = files::int32_at(bytes, 4)};
}

icon_kind classify_icon(const icon_head& head) {
  const bool starts_inside = head.col_start <= head.no_of_cols && head.row_start <= head.no_of_rows;
  const bool ends_inside = head.col_end <= head.no_of_cols && head.row_end <= head.no_of_rows;
  if (!starts_inside) return icon_kind::blank;
  return ends_inside ? icon_kind::drawable : icon_kind::refused;
}

}  // namespace ostrane
