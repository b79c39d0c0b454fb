#pragma once

#include <cstdint>
#include <vector>

#include "data/picture.h"
#include "data/shp_reader.h"

namespace ostrane {

// The head and the directory of an icon file that lies in a larger file, or is all of it.
struct icon_file {
  std::int32_t start = 0;  // its first byte
  std::int32_t end = 0;    // after its last byte
  shp_head head;
  // 1-based, of the icons that the directory has: 5000 at most, and those only whose directory
  // entry lies in the file.
  std::vector<std::int32_t> positions;
};

// Reads an icon file from `start` up to `end`. If there is not even a head it has no icons. Throws
// file_error.
icon_file read_icon_file(files::binary_file& file, std::int32_t start, std::int32_t end);

// What the head of an icon gives as its size, in cells, and whether a picture is made of it.
std::int64_t columns_of(const icon_head& head);
std::int64_t rows_of(const icon_head& head);
constexpr std::int64_t max_picture_cells = std::int64_t{1} << 26U;
bool has_picture(const icon_head& head);

// Draws a drawable icon whose head was read at `position`, for which has_picture is true. Throws
// file_error.
picture read_icon_picture(icon_stream& stream, files::binary_file& file, const icon_file& from,
                          const icon_head& head, std::int32_t position);

}  // namespace ostrane
