#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "data/icon_stream.h"
#include "data/picture.h"
#include "data/shp_reader.h"

namespace ostrane {

// The head and directory of an icon file, which may be part of a larger file.
struct icon_file {
  std::int32_t start = 0;  // file offset of its first byte
  std::int32_t end = 0;    // file offset after its last byte
  shp_head head;
  // 1-based positions of the icons: at most 5000, and only of directory entries inside the file.
  std::vector<std::int32_t> positions;
};

// Reads an icon file at the offsets [start, end). If the head is incomplete the result has no
// icons. Throws file_error.
icon_file read_icon_file(files::binary_file& file, std::int32_t start, std::int32_t end);

// The size in cells that the head of an icon gives.
std::int64_t columns_of(const icon_head& head);
std::int64_t rows_of(const icon_head& head);
constexpr std::int64_t max_picture_cells = std::int64_t{1} << 26U;
// False if that size is not positive or above max_picture_cells.
bool has_picture(const icon_head& head);

// One export or comparison reads at most this many cells, as icons of a few bytes can have large
// pictures.
constexpr std::int64_t max_job_cells = std::int64_t{1} << 30U;

// Returns the cells that all pictures of drawable icons have together. Throws file_error.
std::int64_t count_picture_cells(files::binary_file& file, const icon_file& from);

// Draws a drawable icon with a picture. `position` is that of its head; the file's current position
// must be after the head. Throws file_error.
picture read_icon_picture(icon_stream& stream, files::binary_file& file, const icon_file& from,
                          const icon_head& head, std::int32_t position);

struct stored_icon {
  bool is_there = false;  // its head is in the icon file
  icon_head head = blank_head;
  std::optional<picture> drawn;  // of a drawable icon with a picture
  bool is_cut = false;           // its stream exceeds max_stream_bytes

  friend bool operator==(const stored_icon&, const stored_icon&) = default;
};

// Reads the icon at a 0-based index. Throws file_error.
stored_icon read_stored_icon(icon_stream& stream, files::binary_file& file, const icon_file& from,
                             std::size_t index);

}  // namespace ostrane
