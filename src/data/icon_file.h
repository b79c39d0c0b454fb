#pragma once

#include <cstdint>
#include <vector>

#include "data/picture.h"
#include "data/shp_reader.h"

namespace ostrane {

// The head and the directory of an icon file, which can be a part of a larger file.
struct icon_file {
  std::int32_t start = 0;  // its first byte
  std::int32_t end = 0;    // after its last byte
  shp_head head;
  // 1-based; of at most 5000 icons whose directory entry is inside the file.
  std::vector<std::int32_t> positions;
};

// Reads an icon file between the offsets `start` and `end`. Without a complete head it has no
// icons. Throws file_error.
icon_file read_icon_file(files::binary_file& file, std::int32_t start, std::int32_t end);

// The size of an icon according to its head, in cells, and whether a picture can be made of it.
std::int64_t columns_of(const icon_head& head);
std::int64_t rows_of(const icon_head& head);
constexpr std::int64_t max_picture_cells = std::int64_t{1} << 26U;
bool has_picture(const icon_head& head);

// Draws a drawable icon whose head was read at `position`. Requires has_picture. Throws file_error.
picture read_icon_picture(icon_stream& stream, files::binary_file& file, const icon_file& from,
                          const icon_head& head, std::int32_t position);

}  // namespace ostrane
