#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

// An icon file, an entry whose name ends in ".shp". All numbers are little-endian and signed, all
// offsets count from the entry's first byte.
//
//   offset                size            content
//   0                     4               identifier, any bytes
//   4                     4               number of icons
//   8 + 8 * (n - 1)       4 + 4           offset of icon n, and an unused offset
//   offset of icon n      24              icon_head
//   24 bytes after that                   the icon's run-length stream
//
// icon_head:
//   0   2   rows of the picture - 1               8   4   first column with data
//   2   2   columns of the picture - 1           12   4   first row with data
//   4   4   spare                                16   4   last column with data
//                                                20   4   last row with data
namespace ostrane {

constexpr std::size_t shp_head_size = 8;
constexpr std::size_t shp_dir_entry_size = 8;
constexpr std::size_t icon_head_size = 24;
constexpr std::int32_t max_icons_per_file = 5000;

using shp_identifier = std::array<char, 4>;

struct shp_head {
  shp_identifier identifier = {};
  std::int32_t icon_count = 0;
};

struct shp_dir_entry {
  std::int32_t icon_offset = 0;
};

struct icon_head {
  std::int16_t no_of_rows = 0;
  std::int16_t no_of_cols = 0;
  std::int32_t col_start = 0;
  std::int32_t row_start = 0;
  std::int32_t col_end = 0;
  std::int32_t row_end = 0;
  std::int32_t spare = 0;

  friend bool operator==(const icon_head&, const icon_head&) = default;
};

// The head of an icon that shows nothing. It replaces a head that cannot be read.
constexpr icon_head blank_head = {.col_start = 1};

// Convert the bytes in the file. Values are not checked.
shp_head decode_shp_head(std::span<const std::byte, shp_head_size> bytes);
shp_dir_entry decode_shp_dir_entry(std::span<const std::byte, shp_dir_entry_size> bytes);
icon_head decode_icon_head(std::span<const std::byte, icon_head_size> bytes);

enum class icon_kind { drawable, refused, blank };

// Blank if the data box starts right of or below the picture, refused if it only ends there, else
// drawable.
icon_kind classify_icon(const icon_head& head);

}  // namespace ostrane
